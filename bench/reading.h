#pragma once

namespace plotvue {

void measureReading(int rounds);

} // namespace plotvue
