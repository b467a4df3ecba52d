#pragma once

#include <vector>

// What every bench program reads off a run.
namespace Measure {

// Peak resident set of this process in MB (VmHWM); -1 where the system does not tell.
double peakRssMb();
// The middle sample; -1 for none.
double median(std::vector<double> samples);

} // namespace Measure
