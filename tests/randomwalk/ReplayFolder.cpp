#include "tests/randomwalk/ReplayFolder.h"

#include <fstream>

#include "tests/randomwalk/ReplayLines.h"
#include "tests/randomwalk/Walk.h"

namespace tavrin::walk {

std::string writeReplay(const Plan& plan, const std::filesystem::path& folder) {
  Figures ignored;
  const Walk walk(plan, ignored);
  std::filesystem::create_directories(folder);
  std::ofstream script(folder / "script.jsonl");
  std::ofstream tickets(folder / "tickets.jsonl");
  script << walk.script();
  const auto atTheEnd = walk.tickets();
  for (std::size_t i = 0; i < plan.printers.size(); ++i) {
    const std::string number = std::to_string(i + 1);
    std::ofstream(folder / ("printer-" + number + ".ppd")) << plan.printers[i].ppd;
    script << savingLine(static_cast<int>(i));
    for (const auto& [key, ticket] : atTheEnd[i]) {
      tickets << ticketLine(static_cast<int>(i), key, ticket);
    }
  }
  std::filesystem::copy(
      walk.rootFolder(), folder / "root",
      std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing);
  return walk.fault() + "\n" + walk.script() + "In " + folder.string() +
         ": tavrin-replay --root root script.jsonl\n";
}

}  // namespace tavrin::walk
