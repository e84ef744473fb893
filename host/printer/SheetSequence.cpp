#include "host/printer/SheetSequence.h"

#include "platform/text/IgnoringCase.h"

namespace tavrin {

namespace {

// In the order in which the print system asks for them.
constexpr const char* kOptions[] = {"OutputOrder", "output-order"};

constexpr char kReverse[] = "reverse";

bool isReverse(ppd_attr_t* attribute) {
  return attribute && attribute->value && equalIgnoringCase(attribute->value, kReverse);
}

}  // namespace

bool comesLastSheetFirst(ppd_file_t& ppd, const OptionList& options) {
  for (const char* name : kOptions)
    if (const OptString order = optionValue(options, name))
      return equalIgnoringCase(*order, kReverse);
  const ppd_choice_t* bin = ppdFindMarkedChoice(&ppd, "OutputBin");
  ppd_attr_t* ofBin = bin ? ppdFindAttr(&ppd, "PageStackOrder", bin->choice) : nullptr;
  return isReverse(ofBin ? ofBin : ppdFindAttr(&ppd, "DefaultOutputOrder", nullptr));
}

}  // namespace tavrin
