#pragma once

#include <filesystem>
#include <memory>

namespace tavrin {

// A new hidden folder that goes away with everything in it, unless it is kept under a name: so that
// others see it whole or not at all. It goes away with the program, too, when that ends while
// another thread still fills the folder. Every failure leaves its reason in errno.
class HiddenFolder {
 public:
  explicit HiddenFolder(const std::filesystem::path& parent);
  HiddenFolder(const HiddenFolder&) = delete;
  HiddenFolder& operator=(const HiddenFolder&) = delete;
  ~HiddenFolder();

  // False when it could not be made, and once it is kept.
  explicit operator bool() const { return !folder.empty(); }
  const std::filesystem::path& path() const { return folder; }

  // Gives the folder its name, and others the access that they have to the user's other folders.
  // False when there is something of that name already (EEXIST), or on failure.
  bool keepAs(const std::filesystem::path& name);

 private:
  std::filesystem::path folder;
};

// One for files that nobody keeps, in the temporary folder of the environment (TMPDIR, else /tmp);
// null where it cannot be made.
std::shared_ptr<const HiddenFolder> temporaryHiddenFolder();

}  // namespace tavrin
