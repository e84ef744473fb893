// Talks to the program as another program would: each command is written only after the reply to
// the one before. The script is a named pipe, because reading standard input would flush the
// replies by itself.
//
//     check_conversation PROGRAM

#include <cstdlib>
#include <iostream>
#include <sys/stat.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

[[noreturn]] void fail(const std::string& sentence) {
  std::cerr << sentence << '\n';
  std::exit(1);
}

void checkReply(QProcess& program, QFile& script, const std::string& command) {
  script.write((command + '\n').c_str());
  while (!program.canReadLine())
    if (!program.waitForReadyRead(20000)) fail("No reply came to " + command + ".");
  if (!program.readLine().startsWith(R"({"ok":true)")) fail(command + " was refused.");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const QTemporaryDir folder;
  QFile script(folder.filePath("script"));
  if (mkfifo(QFile::encodeName(script.fileName()), 0600) != 0) fail("The pipe cannot be made.");
  QProcess program;
  program.start(argv[1], {script.fileName()});
  if (!script.open(QFile::WriteOnly | QFile::Unbuffered)) fail("The pipe cannot be opened.");
  checkReply(program, script, R"({"do": "open", "ppd": null})");
  checkReply(program, script, R"({"do": "state"})");
  checkReply(program, script, R"({"do": "close"})");
  script.close();
  if (!program.waitForFinished(20000)) fail("The program did not end with its script.");
  return program.exitCode();
}
