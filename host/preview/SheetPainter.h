#pragma once

#include <memory>

#include <QByteArray>
#include <QObject>

#include "host/prepare/LimitedCommand.h"
#include "host/preview/Sheets.h"

namespace tavrin {

// Draws one sheet.
class SheetPainter : public QObject {
  Q_OBJECT

 public:
  enum class Ink { colour, grey };

  explicit SheetPainter(QObject* parent = nullptr) : QObject(parent) {}

  // Draws the sheet with that index, its longer side that many pixels long, and drops what was
  // being drawn; answered by one of the signals.
  void draw(const Sheets& sheets, int index, int pixels, Ink ink);
  void stop() { command.reset(); }

 signals:
  // A picture in the portable anymap format. The sheet is as it comes out of the printer.
  void drawn(int index, int pixels, const QByteArray& picture);
  void failed(int index);

 private:
  std::shared_ptr<const HiddenFolder> folder;  // of the sheet
  std::unique_ptr<LimitedCommand> command;
};

}  // namespace tavrin
