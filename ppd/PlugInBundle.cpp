#include "ppd/PlugInBundle.h"

#include <utility>

namespace tavrin {
namespace {

Bundle& ownBundle() {
  static const char anchor = 0;
  static Bundle bundle = Bundle::forCode(&anchor);
  return bundle;
}

}  // namespace

const Bundle& plugInBundle() { return ownBundle(); }

void setPlugInBundle(Bundle bundle) { ownBundle() = std::move(bundle); }

}  // namespace tavrin
