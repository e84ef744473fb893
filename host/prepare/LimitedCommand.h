#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <sys/types.h>

#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>

namespace tavrin {

// One of the system's commands at work on something that a stranger made. It runs without a shell,
// with a temporary folder of its own and with limits; when this object goes, it ends at once, with
// all that it has started.
class LimitedCommand : public QObject {
  Q_OBJECT

 public:
  // What each process may use; one that wants more ends.
  struct Limits {
    std::chrono::seconds time;  // also of all of them together
    std::uint64_t memory;       // bytes
    std::uint64_t file;         // bytes of a file that it writes
  };
  struct Call {
    QString program;
    QStringList arguments;
    std::filesystem::path folder;  // for temporary files
    std::filesystem::path output;  // the file that gets its standard output
    Limits limits;
  };
  enum class End {
    well,    // with status 0
    failed,  // with another status, or it could not be started
    slow,    // its time was over
  };

  explicit LimitedCommand(const Call& call, QObject* parent = nullptr);
  ~LimitedCommand() override;

  void start();
  // Its exit status, once it has ended; 128 and more where it did not end by itself.
  int status() const { return exitStatus; }

  // Where the system has a command, also one that is for administrators; empty for nowhere.
  static QString find(const QString& name);

 signals:
  // Sent once, from the event loop; the receiver may delete this object.
  void ended(tavrin::LimitedCommand::End end);

 private:
  static constexpr int kNoStatus = 128;

  void connectProcess();
  void end(End end);
  void killAll();

  QProcess process;
  QTimer clock;
  pid_t group = 0;  // of its processes, while they are at work
  bool isSlow = false;
  bool hasEnded = false;
  int exitStatus = kNoStatus;
};

}  // namespace tavrin
