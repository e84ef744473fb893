#include <benchmark/benchmark.h>
#include <cstdlib>
#include <malloc.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/files/PropertyList.h"
#include "tests/fixtures/HostileLists.h"
#include "tests/fixtures/TemporaryFolder.h"

// The time that each costly list takes, and the memory that a process grows by as it reads it.

namespace {

using tavrin::test::NamedList;

// The peak memory (KiB) of a process that does nothing else. What is free in this process is given
// back first, or the child would live on it unseen.
template <class Work>
long peakMemory(Work work) {
  malloc_trim(0);
  const pid_t child = fork();
  if (child == 0) {
    work();
    _exit(0);
  }
  int status = 0;
  rusage usage = {};
  if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) std::abort();
  return usage.ru_maxrss;
}

void readList(benchmark::State& state, const NamedList& list) {
  const tavrin::test::TemporaryFolder folder;
  const auto file = folder.write("list.plist", list.bytes);
  const auto read = [&] { benchmark::DoNotOptimize(tavrin::readPropertyList(file)); };
  state.counters["MiB"] = static_cast<double>(peakMemory(read) - peakMemory([] {})) / 1024;
  state.SetLabel(tavrin::readPropertyList(file) ? "read" : "refused");
  for (auto _ : state) read();
}

int registerAll() {
  auto lists = tavrin::test::hostileLists();
  for (auto& list : tavrin::test::largeLists()) lists.push_back(list);
  for (const NamedList& list : lists) {
    benchmark::RegisterBenchmark(list.name.c_str(), readList, list)->Unit(benchmark::kMillisecond);
  }
  return static_cast<int>(lists.size());
}

const int registered = registerAll();

}  // namespace
