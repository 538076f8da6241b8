#include "files/smallfile.h"

#include "capture/failure.h"
#include "capture/utf8.h"

namespace plotvue {

void failForFile(const char* file, TextSpan what, TextSpan reason)
{
    throw Failure{u"The file " + fromUtf8(file) + u" in the working directory " + Text(what) + u" (" +
                  Text(reason) + u")."};
}

} // namespace plotvue
