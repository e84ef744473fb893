#include "host/server/PrinterPPD.h"

#include <algorithm>
#include <array>
#include <sys/mman.h>
#include <unistd.h>

#include "host/printer/PPDLoader.h"
#include "host/server/IppRequest.h"
#include "platform/files/FileDescriptor.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

// A queue whose name has one of these could ask for another file of the server.
bool fitsInPath(const std::string& queue) {
  return !queue.empty() && std::ranges::none_of(queue, [](char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == '\x7f' ||
           std::string_view("/?#%").find(c) != std::string_view::npos;
  });
}

// Copies what the server sends. What is wrong with it, as the rest of a sentence; null when nothing
// is.
const char* receive(PrintServer& server, int file) {
  std::array<char, 65536> buffer;
  std::size_t total = 0;
  for (;;) {
    const ssize_t bytes = server.readFile(buffer);
    if (bytes == 0) return nullptr;
    if (bytes < 0) return "it was not sent whole. Try again.";
    total += static_cast<std::size_t>(bytes);
    if (total > kPPDFileLimit) return "it is too large.";
    if (write(file, buffer.data(), static_cast<std::size_t>(bytes)) != bytes)
      return "there is no room for it in memory.";
  }
}

// A server has no file for a queue without a PPD, nor for one that does not exist.
bool hasQueue(PrintServer& server, const std::string& queue) {
  return server.ask(printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue)) != nullptr;
}

// What the server sends as the queue's PPD, in a memory file: nobody else can open it, and
// nothing is left behind.
Cancellable<FileDescriptor> fetch(PrintServer& server, const std::string& queue) {
  const std::string problem = "The description of the printer " + quoted(queue) + " cannot be read";
  if (!server.beginFile("/printers/" + queue + ".ppd")) {
    if (server.status() == HTTP_STATUS_NOT_FOUND && hasQueue(server, queue))
      return Failure{"The printer " + quoted(queue) + " has no settings to show."};
    return server.noAnswer(problem);
  }
  FileDescriptor file(memfd_create("ppd", MFD_CLOEXEC));
  const char* wrong = receive(server, file.get());
  if (!wrong) return file;
  if (server.gaveUp()) return server.noAnswer(problem);
  return Failure{problem + ": " + wrong};
}

}  // namespace

Cancellable<PPDPtr> readPrinterPPD(const std::string& queue, const CancelFlag& cancel,
                                   Patience patience) {
  if (!fitsInPath(queue)) return Failure{quoted(queue) + " is not the name of a printer."};
  auto server = PrintServer::connect(cancel, patience);
  if (!server) return server.why();
  const auto file = fetch(*server, queue);
  if (!file) return file.why();
  auto ppd = loadPPD(file->get(), queue);
  if (!ppd) return Failure{ppd.reason()};
  return std::move(*ppd);
}

}  // namespace tavrin
