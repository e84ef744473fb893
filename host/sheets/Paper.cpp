#include "host/sheets/Paper.h"

namespace tavrin {

Paper markedPaper(ppd_file_t& ppd) {
  const ppd_size_t* size = ppdPageSize(&ppd, nullptr);
  if (!size || size->width <= 0 || size->length <= 0) return {};
  return {QSizeF(size->width, size->length),
          QMarginsF(size->left, size->length - size->top, size->width - size->right, size->bottom)};
}

}  // namespace tavrin
