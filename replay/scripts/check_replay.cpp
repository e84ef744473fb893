// Plays a script and compares the replies with the ones that a person has read and kept, byte for
// byte. Says which command answered differently and where.
//
//     check_replay PROGRAM STATUS SCRIPT EXPECTED ACTUAL [ARGUMENT...]
//
// ACTUAL is where the replies are left when they differ.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <QProcess>
#include <nlohmann/json.hpp>

namespace {

std::vector<std::string> linesOf(std::istream& in) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);)
    if (line.find_first_not_of(" \t\r") != std::string::npos) lines.push_back(line);
  return lines;
}

std::vector<std::string> linesOfFile(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  if (!file) std::cerr << "Cannot read " << name << ".\n";
  return linesOf(file);
}

std::string lineAt(const std::vector<std::string>& lines, std::size_t index) {
  return index < lines.size() ? lines[index] : "(nothing)";
}

// Where two replies differ, as the values at their paths.
void showDifference(const std::string& expected, const std::string& actual) {
  const auto was = nlohmann::json::parse(expected, nullptr, false);
  const auto is = nlohmann::json::parse(actual, nullptr, false);
  if (was.is_discarded() || is.is_discarded()) {
    std::cerr << "  expected: " << expected << "\n  actual:   " << actual << '\n';
    return;
  }
  for (const auto& change : nlohmann::json::diff(was, is)) {
    const nlohmann::json::json_pointer path(change["path"].get<std::string>());
    std::cerr << "  " << path.to_string()
              << "\n    expected: " << (change["op"] == "add" ? "(nothing)" : was.at(path).dump())
              << "\n    actual:   "
              << (change["op"] == "remove" ? "(nothing)" : change["value"].dump()) << '\n';
  }
}

bool sameReplies(const std::vector<std::string>& script, const std::vector<std::string>& expected,
                 const std::vector<std::string>& actual) {
  for (std::size_t i = 0; i < std::max(expected.size(), actual.size()); ++i) {
    if (lineAt(expected, i) == lineAt(actual, i)) continue;
    std::cerr << "Command " << i + 1 << ": " << lineAt(script, i) << '\n';
    showDifference(lineAt(expected, i), lineAt(actual, i));
    return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 6) return 2;
  const std::string status = argv[2], script = argv[3], expected = argv[4], actual = argv[5];
  QStringList arguments;
  for (int i = 6; i < argc; ++i) arguments << argv[i];
  arguments << QString::fromStdString(script);

  QProcess program;
  program.start(argv[1], arguments);
  if (!program.waitForFinished(100000) || program.exitStatus() != QProcess::NormalExit) {
    std::cerr << argv[1] << " did not end by itself.\n";
    return 1;
  }
  const std::string replies = program.readAllStandardOutput().toStdString();
  std::cerr << program.readAllStandardError().toStdString();

  std::istringstream stream(replies);
  bool good = sameReplies(linesOfFile(script), linesOfFile(expected), linesOf(stream));
  if (!good) {
    std::ofstream(actual, std::ios::binary) << replies;
    std::cerr << "The replies are in " << actual << ".\n";
  }
  if (std::to_string(program.exitCode()) != status) {
    std::cerr << "The exit status is " << program.exitCode() << " instead of " << status << ".\n";
    good = false;
  }
  return good ? 0 : 1;
}
