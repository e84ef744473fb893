#include "host/prepare/Imposer.h"

#include <initializer_list>

#include "host/prepare/Imposition.h"
#include "platform/files/ProgramFolder.h"

namespace tavrin {

namespace {

QString listOf(std::initializer_list<double> lengths, char separator) {
  QStringList texts;
  for (const double length : lengths) texts << QString::number(length, 'f', 3);
  return texts.join(separator);
}

}  // namespace

QString imposer() {
  const auto folder = programFolder().parent_path() / "libexec" / "tavrin";
  return QString::fromStdString((folder / "tavrin-impose").string());
}

QStringList imposerArguments(const Paper& paper, const OptionList& options) {
  const QMarginsF& margins = paper.margins;
  QStringList arguments{
      "--paper", listOf({paper.size.width(), paper.size.height()}, 'x'), "--margins",
      listOf({margins.left(), margins.bottom(), margins.right(), margins.top()}, ',')};
  for (const auto& [name, value] : options)
    if (isForImposer(name)) arguments << "-o" << QString::fromStdString(name + "=" + value);
  return arguments;
}

}  // namespace tavrin
