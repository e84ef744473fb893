#include "ppd/TVExtendedPopUpButton.h"

#include "ppd/PPDRecords.h"

namespace tavrin {

void addItemsFromPPD(PopUpButton& popUp, ppd_file_t* ppd, const char* forKey,
                     StringEncoding encoding) {
  popUp.removeAllItems();
  const ppd_option_t* option = ppdFindOption(ppd, forKey);
  if (option == nullptr) return;
  for (const ppd_choice_t& choice : choicesOf(*option)) {
    const std::string value = decode(choice.choice, kASCIIEncoding).value_or("");
    popUp.addItem(decode(choice.text, encoding).value_or(value), value);
  }
}

}  // namespace tavrin
