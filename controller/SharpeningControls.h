#pragma once

#include <cups/ppd.h>

#include "platform/toolkit/Toolkit.h"

namespace tavrin {

// The controls of image sharpening: two buttons of which one is on, and a slider for the amount,
// which only the manual button lets the user work.
class SharpeningControls {
 public:
  void offerOutlets(InterfaceBindings& bindings);

  // The first filling, with the PPD's default choice; absent for a printer without the option.
  void fill(const OptString& defaultChoice);
  // Writes labels and titles; the option may be null.
  void localizeLabels(ppd_option_t* option);
  // Shows the model's ticket, where the controls say anything else.
  void follow(const OptString& ticket);

  void showAutomatic();
  void showManual(int amount);

 private:
  std::string shownTicket() const;
  void setButtons(bool automatic);
  void setEndLabelsColor(TextColor color);

  Outlet<Label> ibImageSharpeningLabel;
  Outlet<Button> ibAutoImageSharpening;
  Outlet<Button> ibManualImageSharpening;
  Outlet<Slider> ibManualImageSharpeningSlider;
  Outlet<Label> ibNoneLabel;
  Outlet<Label> ibMostLabel;
};

}  // namespace tavrin
