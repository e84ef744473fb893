// Plays the script NAME.jsonl and compares the replies with NAME.expected.jsonl, which a person has
// read and kept, byte for byte. Says which command answered differently and where. Standard error
// must hold the lines of NAME.expected.err, or nothing if there is no such file.
//
//     check_replay PROGRAM STATUS NAME ACTUAL [ARGUMENT...]
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
  return linesOf(file);
}

std::vector<std::string> linesOfText(const QByteArray& text) {
  std::istringstream stream(text.toStdString());
  return linesOf(stream);
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

bool sameDiagnostics(const std::vector<std::string>& expected,
                     const std::vector<std::string>& actual) {
  if (expected == actual) return true;
  std::cerr << "Standard error holds:\n";
  for (const std::string& line : actual) std::cerr << "  " << line << '\n';
  return false;
}

bool sameStatus(const std::string& expected, int actual) {
  if (std::to_string(actual) == expected) return true;
  std::cerr << "The exit status is " << actual << " instead of " << expected << ".\n";
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 5) return 2;
  const std::string status = argv[2], name = argv[3], kept = argv[4];
  QStringList arguments(argv + 5, argv + argc);
  arguments << QString::fromStdString(name + ".jsonl");

  QProcess program;
  program.start(argv[1], arguments);
  if (!program.waitForFinished(100000) || program.exitStatus() != QProcess::NormalExit) {
    std::cerr << argv[1] << " did not end by itself.\n";
    return 1;
  }
  const QByteArray replies = program.readAllStandardOutput();
  const bool replied = sameReplies(linesOfFile(name + ".jsonl"),
                                   linesOfFile(name + ".expected.jsonl"), linesOfText(replies));
  if (!replied) {
    std::ofstream(kept, std::ios::binary) << replies.toStdString();
    std::cerr << "The replies are in " << kept << ".\n";
  }
  const bool said = sameDiagnostics(linesOfFile(name + ".expected.err"),
                                    linesOfText(program.readAllStandardError()));
  const bool ended = sameStatus(status, program.exitCode());
  return replied && said && ended ? 0 : 1;
}
