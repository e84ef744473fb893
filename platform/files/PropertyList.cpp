#include "platform/files/PropertyList.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

#include <plist/plist.h>

#include "platform/files/PropertyListGuard.h"
#include "platform/files/RegularFile.h"
#include "platform/text/Utf8.h"

namespace tavrin {
namespace {

struct NodeDeleter {
  void operator()(void* node) const { plist_free(node); }
};
using NodePtr = std::unique_ptr<void, NodeDeleter>;

struct MemoryDeleter {
  void operator()(void* memory) const { std::free(memory); }
};
template <class T>
using MemoryPtr = std::unique_ptr<T, MemoryDeleter>;

PropertyList valueOf(plist_t node);

PropertyList textOf(plist_t node) {
  std::uint64_t length = 0;
  const char* text = plist_get_string_ptr(node, &length);
  if (text == nullptr || !isUtf8({text, length})) return {};
  return PropertyList(std::string(text, length));
}

PropertyList dictionaryOf(plist_t node) {
  PropertyList::Dictionary dictionary;
  plist_dict_iter position = nullptr;
  plist_dict_new_iter(node, &position);
  const MemoryPtr<void> owner(position);
  while (true) {
    char* key = nullptr;
    plist_t value = nullptr;
    plist_dict_next_item(node, position, &key, &value);
    const MemoryPtr<char> keyOwner(key);
    if (key == nullptr || value == nullptr) break;
    if (isUtf8(key)) dictionary.insert_or_assign(key, valueOf(value));
  }
  return PropertyList(std::move(dictionary));
}

// The recursion is as deep as the list, which the guard has limited.
PropertyList valueOf(plist_t node) {
  switch (plist_get_node_type(node)) {
    case PLIST_STRING:
      return textOf(node);
    case PLIST_DICT:
      return dictionaryOf(node);
    default:
      return {};
  }
}

// The format is chosen here and not by libplist, which would also take formats that nothing guards.
NodePtr parse(std::string_view bytes) {
  constexpr std::string_view kBinaryMark = "bplist00";
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  const auto size = [](std::string_view text) { return static_cast<std::uint32_t>(text.size()); };
  plist_t root = nullptr;
  if (bytes.starts_with(kBinaryMark)) {
    if (isHarmlessBinaryList(bytes)) plist_from_bin(bytes.data(), size(bytes), &root);
    return NodePtr(root);
  }
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  if (isHarmlessXmlList(bytes)) plist_from_xml(bytes.data(), size(bytes), &root);
  return NodePtr(root);
}

}  // namespace

OptString PropertyList::string() const {
  const auto* text = std::get_if<std::string>(&content);
  return text != nullptr ? OptString(*text) : std::nullopt;
}

const PropertyList* PropertyList::entry(const std::string& key) const {
  const Dictionary* entries = dictionary();
  if (entries == nullptr) return nullptr;
  const auto found = entries->find(key);
  return found != entries->end() ? &found->second : nullptr;
}

OptString PropertyList::stringAt(const std::vector<std::string>& keys) const {
  const PropertyList* value = this;
  for (const std::string& key : keys) {
    value = value->entry(key);
    if (value == nullptr) return std::nullopt;
  }
  return value->string();
}

const PropertyList::Dictionary* PropertyList::dictionary() const {
  return std::get_if<Dictionary>(&content);
}

std::optional<PropertyList> readPropertyList(const std::filesystem::path& file) {
  const auto bytes = readRegularFile(file, kPropertyListSizeLimit);
  return bytes ? parsePropertyList(*bytes) : std::nullopt;
}

std::optional<PropertyList> parsePropertyList(const std::string& bytes) {
  if (bytes.size() > kPropertyListSizeLimit) return std::nullopt;
  const NodePtr root = parse(bytes);
  return root ? std::optional(valueOf(root.get())) : std::nullopt;
}

}  // namespace tavrin
