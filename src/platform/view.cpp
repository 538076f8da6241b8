#include "platform/view.h"

#include <algorithm>

namespace plotvue {

int columnsOf(TextView format)
{
    return 1 + static_cast<int>(std::count(format.begin(), format.end(), u'|'));
}

} // namespace plotvue
