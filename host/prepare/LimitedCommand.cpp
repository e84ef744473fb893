#include "host/prepare/LimitedCommand.h"

#include <csignal>
#include <cstdlib>
#include <set>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

#include <QStandardPaths>

namespace tavrin {

namespace {

void limit(__rlimit_resource resource, rlim_t most) {
  const rlimit both{most, most};
  setrlimit(resource, &both);
}

// In the child, between fork and exec: only calls that are safe there.
void confine(const LimitedCommand::Limits& limits) {
  setsid();  // a group of its own, so that all that it starts can be ended with it
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
  limit(RLIMIT_CORE, 0);
  limit(RLIMIT_CPU, static_cast<rlim_t>(limits.time.count()));
  limit(RLIMIT_AS, limits.memory);
  limit(RLIMIT_FSIZE, limits.file);
}

// The groups of processes that are at work. A program may end without destroying anything, as when
// its display is gone.
class Groups {
 public:
  static Groups& all() {
    static auto* groups = new Groups;  // NOLINT(cppcoreguidelines-owning-memory)
    return *groups;
  }
  void add(pid_t group) { groups.insert(group); }
  void end(pid_t group) {
    if (groups.erase(group) == 0) return;
    ::kill(-group, SIGKILL);
    ::kill(group, SIGKILL);  // which may not have its group yet
  }
  void forget(pid_t group) { groups.erase(group); }

 private:
  Groups() {
    std::atexit([] {
      while (!all().groups.empty()) all().end(*all().groups.begin());
    });
  }

  std::set<pid_t> groups;
};

QString shown(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

}  // namespace

QString LimitedCommand::find(const QString& name) {
  const QString found = QStandardPaths::findExecutable(name);
  return found.isEmpty() ? QStandardPaths::findExecutable(name, {"/usr/sbin", "/sbin"}) : found;
}

LimitedCommand::LimitedCommand(const Call& call, QObject* parent) : QObject(parent) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("TMPDIR", shown(call.folder));
  process.setProcessEnvironment(environment);
  process.setProgram(call.program);
  process.setArguments(call.arguments);
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(shown(call.output));
  process.setStandardErrorFile(QProcess::nullDevice());
  process.setChildProcessModifier([limits = call.limits] { confine(limits); });
  clock.setSingleShot(true);
  clock.setInterval(call.limits.time);
  connect(&clock, &QTimer::timeout, this, [this] {
    isSlow = true;
    killAll();
  });
  connectProcess();
}

// The group is known at once: whoever drops the command before the event loop has told that it
// started must not wait for its work.
void LimitedCommand::start() {
  process.start(QIODevice::NotOpen);
  group = static_cast<pid_t>(process.processId());
  if (group > 0) Groups::all().add(group);
  clock.start();
}

// By way of the event loop, so that whoever hears the end may delete this object.
void LimitedCommand::connectProcess() {
  const auto tellEnd = [this](int status, QProcess::ExitStatus how) {
    killAll();  // what it has left behind
    if (how == QProcess::NormalExit) exitStatus = status;
    const bool isWell = how == QProcess::NormalExit && status == 0;
    end(isSlow ? End::slow : isWell ? End::well : End::failed);
  };
  const auto tellFailure = [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) end(End::failed);
  };
  connect(&process, &QProcess::finished, this, tellEnd, Qt::QueuedConnection);
  connect(&process, &QProcess::errorOccurred, this, tellFailure, Qt::QueuedConnection);
}

// A process that cannot be started may say so twice.
void LimitedCommand::end(End how) {
  if (!std::exchange(hasEnded, true)) emit ended(how);
}

LimitedCommand::~LimitedCommand() {
  process.disconnect(this);
  killAll();
  process.waitForFinished();
}

void LimitedCommand::killAll() {
  if (group > 0) Groups::all().end(std::exchange(group, 0));
}

}  // namespace tavrin
