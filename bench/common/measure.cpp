#include "measure.h"

#include <QFile>

#include <algorithm>

namespace Measure {

double peakRssMb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
    }
    return -1;
}

double median(std::vector<double> samples)
{
    if (samples.empty())
        return -1;
    std::nth_element(samples.begin(), samples.begin() + std::ptrdiff_t(samples.size() / 2), samples.end());
    return samples[samples.size() / 2];
}

} // namespace Measure
