#pragma once

#include <functional>
#include <memory>

#include <QDialog>
#include <QPointer>

#include "platform/toolkit/Window.h"

namespace tavrin {

// A message window on a dialog. However it is closed (by the program, the window manager or the
// Escape key), it closes once, as Window says. Labels of the interface file whose names begin with
// "warningSign" show the desktop's sign for a warning.
class QtWindow : public Window {
 public:
  explicit QtWindow(QDialog& dialog);
  ~QtWindow() override;

  void setTitle(const std::string& title) override;
  void center() override;
  void display() override;
  void close() override;

  // The dialog; null once it has been deleted.
  QDialog* dialog() const { return widget; }
  bool isUp() const { return up; }

  // What must stay alive while the window runs or closes.
  void setOwner(std::weak_ptr<void> whole) { owner = std::move(whole); }
  std::shared_ptr<void> keepAlive() const { return owner.lock(); }
  // Called as the window closes, while it is still visible.
  void onClosing(std::function<void()> body) { closing = std::move(body); }
  // Called once it is down; for whoever runs it modally.
  void onClosed(std::function<void()> body) { closed = std::move(body); }

 private:
  class Events;

  QWidget* coveredWindow() const;
  void fit(const QSize& screen);
  void fitScrolledContents(const QSize& room);
  QPoint placeOver(const QWidget* covered, const QRect& screen) const;
  void focusFirstChoice();
  void describe();
  void showSigns();

  QPointer<QDialog> widget;
  std::unique_ptr<Events> events;
  std::weak_ptr<void> owner;
  std::function<void()> closing;
  std::function<void()> closed;
  bool up = false;
  bool isClosing = false;
};

}  // namespace tavrin
