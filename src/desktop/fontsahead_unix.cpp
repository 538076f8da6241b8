#include "desktop/fontsahead.h"

#include <QFontDatabase>
#include <QStringList>

#include <fontconfig/fontconfig.h>

namespace plotvue {

// If no thread can be started, std::async defers the call, and the toolkit loads the fonts itself.
FontsAhead::FontsAhead() : configured_(std::async(FcInit)) {}

void FontsAhead::list()
{
    listed_ = std::async([this] {
        configured_.wait(); // otherwise the toolkit would read the configuration a second time
        QFontDatabase::families();
    });
}

} // namespace plotvue
