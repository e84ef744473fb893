#include "host/preview/SheetPainter.h"

#include <QFile>

namespace tavrin {

namespace {

constexpr LimitedCommand::Limits kDrawLimits{std::chrono::seconds(30), 1 << 30, 256 << 20};

}  // namespace

void SheetPainter::draw(const Sheets& sheets, int index, int pixels, Ink ink) {
  const SheetPlace place = sheets.at(index);
  folder = place.document.folder;
  const auto picture = folder->path() / "sheet.ppm";
  const QString page = QString::number(place.index + 1);
  QStringList arguments{"-f", page, "-l", page, "-scale-to", QString::number(pixels)};
  if (ink == Ink::grey) arguments << "-gray";
  arguments << QString::fromStdString(place.document.pdf.string());
  command = std::make_unique<LimitedCommand>(LimitedCommand::Call{
      LimitedCommand::find("pdftoppm"), arguments, folder->path(), picture, kDrawLimits});
  connect(command.get(), &LimitedCommand::ended, this, [=, this](LimitedCommand::End end) {
    QFile file(QString::fromStdString(picture.string()));
    if (end != LimitedCommand::End::well || !file.open(QIODevice::ReadOnly))
      return emit failed(index);
    emit drawn(index, pixels, file.readAll());
  });
  command->start();
}

}  // namespace tavrin
