#pragma once

#include <QComboBox>

#include "platform/qt/controls/PendingChange.h"
#include "platform/qt/controls/QtControl.h"
#include "platform/toolkit/Controls.h"

namespace tavrin {

// A pop-up on a combo box. Its action also runs when the user picks the selected item again; while
// he goes through the items of a closed pop-up, it waits for him to stop.
class QtPopUpButton : public QtControlOf<PopUpButton, QComboBox> {
 public:
  // The pending change outlives the pop-up.
  QtPopUpButton(QComboBox& box, PendingChange& pending);

  void removeAllItems() override;
  void addItem(const std::string& title, const std::string& value) override;
  int numberOfItems() const override;
  OptString itemTitle(int index) const override;
  OptString itemValue(int index) const override;
  int indexOfSelectedItem() const override;
  void selectItemWithTitle(const OptString& title) override;

 private:
  void changedByUser();
  OptString itemText(int index, int role) const;
  int indexOfTitle(const OptString& title) const;

  PendingChange& pendingChange;
};

}  // namespace tavrin
