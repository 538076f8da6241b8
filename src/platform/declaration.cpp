#include "platform/declaration.h"

namespace plotvue {

Item row(std::vector<Item> items, int stretch)
{
    return {Panel{Panel::Direction::Row, std::move(items)}, stretch};
}

Item column(std::vector<Item> items, int stretch)
{
    return {Panel{Panel::Direction::Column, std::move(items)}, stretch};
}

} // namespace plotvue
