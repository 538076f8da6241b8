#include "platform/desktop/fontsahead.h"

#include <QFontDatabase>
#include <QStringList>

#include <fontconfig/fontconfig.h>

namespace plotvue {

// Where no thread can be had, nothing is done ahead.
FontsAhead::FontsAhead() : configured_(std::async(FcInit)) {}

void FontsAhead::list()
{
    listed_ = std::async([this] {
        configured_.wait(); // begun a second time before it is done, it would be done twice
        QFontDatabase::families();
    });
}

} // namespace plotvue
