#pragma once

#include <string>

#include "platform/text/OptionalString.h"

namespace tavrin {

// The title that an HTML page of a help book declares: the content of <meta name="AppleTitle">,
// else the text of <title>; blanks collapsed, &amp; &lt; &gt; and &quot; decoded. Absent when the
// page declares neither, or nothing readable. Any bytes may be given; takes linear time.
OptString htmlTitle(const std::string& html);

}  // namespace tavrin
