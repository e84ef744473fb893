#include "host/server/Relay.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <span>
#include <sys/socket.h>
#include <utility>

namespace tavrin {

namespace {

// How often a line is looked at on which nothing happens.
constexpr int kLookMilliseconds = 50;

FileDescriptor connectTo(http_addrlist_t* server, std::chrono::steady_clock::duration patience) {
  const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(patience).count();
  int connection = -1;
  httpAddrConnect2(server, &connection, std::clamp<int>(milliseconds, 0, 60'000), nullptr);
  if (connection >= 0) fcntl(connection, F_SETFL, fcntl(connection, F_GETFL) | O_NONBLOCK);
  return FileDescriptor(connection);
}

// What libcups has not read yet when the line is cut, it still unpacks and reads: it must be
// little.
void keepLittle(const FileDescriptor& end) {
  const int bytes = 16 << 10;
  setsockopt(end.get(), SOL_SOCKET, SO_SNDBUF, &bytes, sizeof(bytes));
}

// Bytes on their way from one end of a line to the other.
class Flow {
 public:
  enum class State { open, sourceClosed, targetClosed };

  // What to wait for at either end.
  short atSource() const { return waiting.empty() ? POLLIN : 0; }
  short atTarget() const { return waiting.empty() ? 0 : POLLOUT; }

  // Passes on what can be passed on without waiting.
  State move(const FileDescriptor& source, const FileDescriptor& target) {
    if (waiting.empty()) {
      const ssize_t came = recv(source.get(), buffer.data(), buffer.size(), 0);
      if (came == 0 || (came < 0 && !mayComeLater())) return State::sourceClosed;
      waiting = std::span(buffer).first(count(came));
      total += waiting.size();
    }
    if (waiting.empty()) return State::open;
    const ssize_t sent = send(target.get(), waiting.data(), waiting.size(), MSG_NOSIGNAL);
    if (sent < 0 && !mayComeLater()) return State::targetClosed;
    waiting = waiting.subspan(count(sent));
    return State::open;
  }

  // The bytes that came since this was last asked.
  std::size_t takeTotal() { return std::exchange(total, 0); }

 private:
  static bool mayComeLater() { return errno == EAGAIN || errno == EINTR; }
  static std::size_t count(ssize_t bytes) {
    return static_cast<std::size_t>(std::max<ssize_t>(bytes, 0));
  }

  std::array<char, 1 << 16> buffer;
  std::span<const char> waiting;
  std::size_t total = 0;
};

pollfd waitingFor(int descriptor, int events) {
  return {descriptor, static_cast<short>(events), 0};
}

}  // namespace

// One connection of libcups', joined to one to the server.
class Relay::Line {
 public:
  Line(FileDescriptor toLibcups, FileDescriptor toServer)
      : near(std::move(toLibcups)), far(std::move(toServer)) {}

  std::array<pollfd, 2> ends() const {
    return {atEnd(near, question.atSource() | answer.atTarget()),
            atEnd(far, answer.atSource() | question.atTarget())};
  }

  // Both pass on what there is. False when the line is of no more use; a server that listens no
  // more may still say why.
  bool moveQuestion() { return question.move(near, far) != Flow::State::sourceClosed; }
  bool moveAnswer() { return answer.move(far, near) == Flow::State::open; }
  std::size_t takeReceived() { return answer.takeTotal(); }

 private:
  // Where nothing is wanted of an end, that it was closed must not wake anybody.
  static pollfd atEnd(const FileDescriptor& end, int events) {
    return waitingFor(events == 0 ? -1 : end.get(), events);
  }

  FileDescriptor near, far;
  Flow question, answer;
};

std::unique_ptr<Relay> Relay::to(const std::string& host, int port, const CancelFlag& cancel,
                                 Patience patience) {
  AddressListPtr server(httpAddrGetList(host.c_str(), AF_UNSPEC, std::to_string(port).c_str()));
  FileDescriptor connection = connectTo(server.get(), patience);
  if (!connection) return nullptr;
  std::unique_ptr<Relay> relay(
      new Relay(std::move(server), std::move(connection), cancel, patience));
  return relay->entrance ? std::move(relay) : nullptr;
}

Relay::Relay(AddressListPtr itsServer, FileDescriptor firstConnection, const CancelFlag& cancelFlag,
             Patience itsPatience)
    : server(std::move(itsServer)),
      connection(std::move(firstConnection)),
      cancel(cancelFlag),
      patience(itsPatience) {
  restart();
  if (entrance) thread = std::thread([this] { work(); });
}

Relay::~Relay() { hangUp(); }

void Relay::hangUp() {
  over = true;
  entrance.shut();
  if (thread.joinable()) thread.join();
}

void Relay::restart() {
  received = 0;
  deadline = Clock::now() + patience;
}

void Relay::pause() { deadline = Clock::time_point::max(); }

void Relay::work() {
  std::unique_ptr<Line> line;
  while (!mustCut()) {
    wait(line.get());
    if (!line) line = nextLine();
    if (!line) continue;
    const bool isOpen = line->moveAnswer() && line->moveQuestion();
    received += line->takeReceived();
    if (!isOpen) line.reset();
  }
  entrance.shut();
}

bool Relay::mustCut() {
  if (cancel)
    reason = Cut::cancelled;
  else if (received > kLongestAnswer)
    reason = Cut::tooLong;
  else if (Clock::now() >= deadline.load())
    reason = Cut::late;
  return over || reason != Cut::none;
}

// For somebody to come or something to happen on the line, but not for long. The entrance wakes it
// when it is shut.
void Relay::wait(const Line* line) const {
  std::array<pollfd, 3> ends{};
  ends[0] = waitingFor(entrance.descriptor(), line ? 0 : POLLIN);
  std::size_t count = 1;
  if (line)
    for (const pollfd& end : line->ends()) ends[count++] = end;
  poll(ends.data(), count, kLookMilliseconds);
}

// Null when nobody has come, or the server cannot be reached any more.
std::unique_ptr<Relay::Line> Relay::nextLine() {
  FileDescriptor caller = entrance.letIn();
  if (!caller) return nullptr;
  if (!connection) connection = connectTo(server.get(), deadline.load() - Clock::now());
  if (!connection) return nullptr;
  keepLittle(caller);
  return std::make_unique<Line>(std::move(caller), std::move(connection));
}

}  // namespace tavrin
