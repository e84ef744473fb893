#pragma once

#include <array>
#include <string>
#include <utility>

#include <QObject>
#include <QString>

#include "host/request/JobRequest.h"
#include "platform/text/Result.h"

namespace tavrin {

// The numbers of pages on a sheet that the print system can lay out.
inline constexpr std::array kPagesPerSheet{1, 2, 4, 6, 9, 16};

// What is set for every job, whatever its printer: copies, pages, pages per sheet. The program and
// the printer suggest values; a suggestion has no effect once the person has set the field.
class JobFields : public QObject {
  Q_OBJECT

 public:
  // Which pages: all, or those in a range as the person writes it ("1-3,5").
  struct Pages {
    bool all = true;
    QString range;
  };

  int copies() const { return copiesField.value; }
  // An impossible number of copies becomes the nearest possible one.
  void setCopies(int copies);
  void suggestCopies(int copies);

  const Pages& pages() const { return pagesField.value; }
  void setPages(Pages pages);
  // The empty range stands for all pages.
  void suggestPageRange(const QString& range);
  // The pages in the print system's form ("1-3,5"), empty for all; or what is wrong with them.
  Result<std::string> pageRanges() const;

  int pagesPerSheet() const { return perSheetField.value; }
  // Nothing changes for a number that the print system cannot lay out.
  void setPagesPerSheet(int pages);
  // False, and nothing changes, for a number that the print system cannot lay out.
  bool suggestPagesPerSheet(int pages);

  // Suggests what the request asks for, or else what these options do. A sentence where they ask
  // for an impossible number of pages on a sheet; else empty.
  QString suggest(const JobRequest& request, const OptionList& options);

 signals:
  // A suggestion was taken: what shows the fields shows them anew.
  void suggestionTaken();
  void pagesPerSheetChanged(int pages);
  // Any field has another value, whoever set it.
  void changed();

 private:
  template <class T>
  struct Field {
    T value;
    bool byHand = false;
  };

  Field<int> copiesField{1};
  Field<Pages> pagesField{};
  Field<int> perSheetField{1};
};

}  // namespace tavrin
