// Single-precision statistics over database samples and the comparison rule.
#include "analysis/peer_stats.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

#include "base/format.h"

namespace tavi {

void PeerStatAccumulator::add(float x) {
    if (n_ == 0) {
        min_ = x;
        max_ = x;
    } else {
        min_ = x < min_ ? x : min_;
        max_ = x > max_ ? x : max_;
    }
    ++n_;
    sum_ += x;
    sumsq_ += x * x;
}

PeerStat PeerStatAccumulator::result(bool hasSd) const {
    PeerStat stat;
    stat.n = n_;
    stat.hasSd = hasSd;
    if (n_ == 0)
        return stat;
    const float n = static_cast<float>(n_);
    stat.mean = sum_ / n;
    stat.min = min_;
    stat.max = max_;
    if (hasSd && n_ >= 2) {
        float variance = (sumsq_ - sum_ * sum_ / n) / (n - 1.0f);
        if (variance < 0.0f)
            variance = 0.0f;
        stat.sd = std::sqrt(variance);
    }
    return stat;
}

bool measureCarriesSd(MeasureId id) {
    return measureFormat(id) != MeasureFormat::Text;
}

std::string distanceText(float absZ) {
    if (absZ > 3.0f)
        return "more than 3 SD";
    return format("%0.2f SD", static_cast<double>(absZ));
}

std::optional<PeerComparison> compareWithPeers(std::optional<double> value, const PeerStat& stat,
                                               float sdInterval) {
    if (!value || stat.n == 0)
        return std::nullopt;
    PeerComparison comparison;
    if (!stat.hasSd || stat.sd == 0.0f)
        return comparison;
    const float z = (static_cast<float>(*value) - stat.mean) / stat.sd;
    comparison.z = z;
    comparison.distance = distanceText(std::fabs(z));
    if (std::fabs(z) >= sdInterval)
        comparison.standing = z < 0.0f ? PeerStanding::Below : PeerStanding::Above;
    return comparison;
}

std::string_view standingWord(PeerStanding standing) {
    switch (standing) {
    case PeerStanding::Above:
        return "above";
    case PeerStanding::Below:
        return "below";
    case PeerStanding::Comparable:
        break;
    }
    return "comparable";
}

std::string shortestFloat(float value) {
    char buffer[64];
    auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
    if (ec != std::errc())
        return "0";
    return std::string(buffer, end);
}

float sdIntervalFromText(std::string_view text) {
    std::string s(text);
    char* end = nullptr;
    const float value = std::strtof(s.c_str(), &end);
    while (end && (*end == ' ' || *end == '\t'))
        ++end;
    if (s.empty() || end == s.c_str() || *end != '\0' || !std::isfinite(value) || value <= 0.0f)
        return kDefaultSdInterval;
    return value;
}

} // namespace tavi
