#include "platform/view.h"

#include <algorithm>

namespace plotvue {

int columnsOf(TextSpan format)
{
    return 1 + static_cast<int>(std::count(format.begin(), format.end(), u'|'));
}

} // namespace plotvue
