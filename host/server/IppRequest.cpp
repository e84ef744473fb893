#include "host/server/IppRequest.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tavrin {

namespace {

IppPtr requestAbout(ipp_op_t operation, const char* uriName, const std::string& uri) {
  IppPtr request(ippNewRequest(operation));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, uriName, nullptr, uri.c_str());
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  return request;
}

constexpr int kDeepest = 16;  // collections in each other; those of printers are three deep

// The number that two bytes of a message make up.
std::size_t lengthAt(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]) << 8 | static_cast<unsigned char>(bytes[at + 1]);
}

// The length of an attribute: a tag, a name and a value, each of the two after its length in two
// bytes. 0 where the bytes end before it does.
std::size_t attributeLength(std::string_view bytes) {
  std::size_t length = 1;
  for (int field = 0; field < 2; ++field) {
    if (length + 2 > bytes.size()) return 0;
    length += 2 + lengthAt(bytes, length);
  }
  return length <= bytes.size() ? length : 0;
}

// Whether the attributes, which begin behind version, status and number, are whole and no deeper
// than they may be. What separates groups is one byte. Tags of four bytes are nobody's.
bool isSound(std::string_view message) {
  constexpr std::size_t kStart = 8;
  message.remove_prefix(std::min(kStart, message.size()));
  for (int depth = 0; !message.empty();) {
    const auto tag = static_cast<unsigned char>(message[0]);
    if (tag == IPP_TAG_END) return true;
    const std::size_t length = tag < IPP_TAG_UNSUPPORTED_VALUE ? 1 : attributeLength(message);
    if (tag == IPP_TAG_BEGIN_COLLECTION) ++depth;
    if (tag == IPP_TAG_END_COLLECTION) --depth;
    if (length == 0 || depth < 0 || depth > kDeepest || tag == IPP_TAG_EXTENSION) return false;
    message.remove_prefix(length);
  }
  return false;
}

// Gives libcups the next bytes of a message, all that it asks for.
ssize_t takeBytes(void* context, ipp_uchar_t* buffer, std::size_t wanted) {
  auto& bytes = *static_cast<std::string_view*>(context);
  if (wanted > bytes.size()) return -1;
  bytes.copy(reinterpret_cast<char*>(buffer), wanted);
  bytes.remove_prefix(wanted);
  return static_cast<ssize_t>(wanted);
}

}  // namespace

IppPtr readMessage(std::string_view bytes) {
  if (!isSound(bytes)) return nullptr;
  IppPtr message(ippNew());
  ipp_state_t state = IPP_STATE_IDLE;
  while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
    state = ippReadIO(&bytes, takeBytes, /*blocking=*/1, nullptr, message.get());
  return state == IPP_STATE_DATA ? std::move(message) : nullptr;
}

IppPtr printerRequest(ipp_op_t operation, const std::string& queue) {
  char uri[HTTP_MAX_URI];
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof(uri), "ipp", nullptr, "localhost", 0,
                   "/printers/%s", queue.c_str());
  return requestAbout(operation, "printer-uri", uri);
}

IppPtr jobRequest(ipp_op_t operation, int jobId) {
  return requestAbout(operation, "job-uri", "ipp://localhost/jobs/" + std::to_string(jobId));
}

int integerIn(ipp_t& answer, const char* name) {
  ipp_attribute_t* attribute = ippFindAttribute(&answer, name, IPP_TAG_ZERO);
  const ipp_tag_t tag = ippGetValueTag(attribute);
  const bool isNumber = tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM;
  return isNumber ? ippGetInteger(attribute, 0) : 0;
}

bool booleanIn(ipp_t& answer, const char* name, bool fallback) {
  ipp_attribute_t* attribute = ippFindAttribute(&answer, name, IPP_TAG_BOOLEAN);
  return attribute ? ippGetBoolean(attribute, 0) != 0 : fallback;
}

std::string textIn(ipp_t& answer, const char* name) {
  ipp_attribute_t* attribute = ippFindAttribute(&answer, name, IPP_TAG_ZERO);
  return attribute ? textOf(*attribute) : "";
}

std::string textOf(ipp_attribute_t& attribute) {
  const bool isOne = ippGetCount(&attribute) == 1;
  const char* text = isOne ? ippGetString(&attribute, 0, nullptr) : nullptr;
  return text ? text : valuesOf(attribute);
}

std::string valuesOf(ipp_attribute_t& attribute) {
  std::vector<char> buffer(ippAttributeString(&attribute, nullptr, 0) + 1);
  ippAttributeString(&attribute, buffer.data(), buffer.size());
  return buffer.data();
}

}  // namespace tavrin
