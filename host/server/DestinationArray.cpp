#include "host/server/DestinationArray.h"

namespace tavrin {

cups_dest_t* DestinationArray::find(const char* name, const char* instance) const {
  return cupsGetDest(name, instance, count, first);
}

cups_dest_t& DestinationArray::add(const char* name, const char* instance) {
  count = cupsAddDest(name, instance, count, &first);  // does nothing where it is there
  return *find(name, instance);
}

void DestinationArray::setDefault(const char* name, const char* instance) {
  if (find(name, instance)) cupsSetDefaultDest(name, instance, count, first);
}

}  // namespace tavrin
