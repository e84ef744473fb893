#include "host/support/Cancellation.h"

namespace tavrin {

const CancelFlag& neverCancelled() {
  static const CancelFlag flag = false;
  return flag;
}

}  // namespace tavrin
