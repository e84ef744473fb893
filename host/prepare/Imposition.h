#pragma once

#include <string>
#include <vector>

#include "host/prepare/DocumentFacts.h"
#include "host/printer/Paper.h"
#include "host/support/OptionList.h"

// Who lays a document out: the print system's own filters where they do it right, else this
// program, before the document is sent.

namespace tavrin {

// Whether the job's options want of this document what the filters do not do right.
bool mustBeImposed(const DocumentFacts& document, const OptionList& options);

bool arePictures(const std::vector<DocumentFacts>& documents);

// Whether all these documents make one job, together on sheets.
bool goTogether(const std::vector<DocumentFacts>& documents, const OptionList& options);

// Whether the imposer acts on an option.
bool isForImposer(const std::string& name);

// The options of a job whose document is a PDF of finished sheets: what is done is not done again,
// neither by what the person set nor by what the queue does by default.
OptionList optionsOnceImposed(OptionList options);

// The options by which a text becomes a PDF that is then imposed.
OptionList optionsOfText(OptionList options);

// With margins for a text where the paper has none: letters do not stand at its very edge.
OptionList withTextMargins(OptionList options, const Paper& paper);

}  // namespace tavrin
