#include "platform/declaration.h"

namespace plotvue {

Item row(std::vector<Item> items, int stretch)
{
    return {Box{Box::Direction::Row, std::move(items)}, stretch};
}

Item column(std::vector<Item> items, int stretch)
{
    return {Box{Box::Direction::Column, std::move(items)}, stretch};
}

} // namespace plotvue
