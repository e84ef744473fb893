#include "host/server/PrinterPPD.h"

#include <algorithm>
#include <array>
#include <sys/mman.h>
#include <unistd.h>

#include "host/printer/PPDLoader.h"
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

http_status_t get(http_t* http, const std::string& resource) {
  httpClearFields(http);
  if (httpGet(http, resource.c_str()) != 0) return HTTP_STATUS_ERROR;
  http_status_t status = HTTP_STATUS_CONTINUE;
  while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(http);
  return status;
}

// Copies what the server sends; false when it breaks off or sends more than a PPD can be.
bool receive(const PrintServer& server, int file) {
  std::array<char, 65536> buffer;
  std::size_t total = 0;
  for (;;) {
    const ssize_t bytes = httpRead2(server.http(), buffer.data(), buffer.size());
    if (bytes <= 0) return bytes == 0 && !server.gaveUp();
    total += static_cast<std::size_t>(bytes);
    if (total > kPPDFileLimit ||
        write(file, buffer.data(), static_cast<std::size_t>(bytes)) != bytes)
      return false;
  }
}

// What the server sends as the queue's PPD, in a memory file: nobody else can open it, and
// nothing is left behind.
Cancellable<FileDescriptor> fetch(const PrintServer& server, const std::string& queue) {
  const std::string printer = "The printer " + quoted(queue);
  const std::string problem = "The description of the printer " + quoted(queue) + " cannot be read";
  const http_status_t status = get(server.http(), "/printers/" + queue + ".ppd");
  if (server.gaveUp()) return server.noAnswer(problem);
  if (status == HTTP_STATUS_NOT_FOUND) return Failure{printer + " does not exist or has no PPD."};
  if (status != HTTP_STATUS_OK)
    return Failure{problem + ": the print server says " + quoted(httpStatus(status)) + "."};
  FileDescriptor file(memfd_create("ppd", MFD_CLOEXEC));
  if (receive(server, file.get())) return file;
  if (server.gaveUp()) return server.noAnswer(problem);
  return Failure{problem + ": it is too large or was not sent whole."};
}

}  // namespace

Cancellable<PPDPtr> readPrinterPPD(const std::string& queue, const CancelFlag& cancel,
                                   Patience patience) {
  if (!fitsInPath(queue)) return Failure{quoted(queue) + " is not the name of a printer."};
  const auto server = PrintServer::connect(cancel, patience);
  if (!server) return server.why();
  const auto file = fetch(*server, queue);
  if (!file) return file.why();
  auto ppd = loadPPD(file->get(), queue);
  if (!ppd) return Failure{ppd.reason()};
  return std::move(*ppd);
}

}  // namespace tavrin
