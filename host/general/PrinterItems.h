#pragma once

#include <QStyledItemDelegate>

namespace tavrin {

// Draws the printers of a list in two lines each: the title, and the details quietly below it.
class PrinterItems : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // The role under which an item has its details.
  static constexpr int kDetails = Qt::UserRole;

  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tavrin
