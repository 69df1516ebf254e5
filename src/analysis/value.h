// A measure value: a count, a real number or a text, or missing when it cannot
// be computed (no utterances, no timing). Missing prints as "   ---".
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <variant>

#include "analysis/measure_id.h"

namespace tavi {

inline constexpr const char* kMissingText = "   ---";

class Value {
public:
    Value() = default; // missing
    static Value count(std::int32_t n) { return Value(Storage(n)); }
    // A count from a 64-bit sum, held at the largest count when it is larger.
    static Value saturatedCount(std::int64_t n) {
        return count(static_cast<std::int32_t>(
            std::clamp<std::int64_t>(n, std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::max())));
    }
    static Value real(double x) { return Value(Storage(x)); }
    static Value text(std::string s) { return Value(Storage(std::move(s))); }
    // real(num / den * scale) when den > 0, else missing; scale 100 gives a percentage.
    static Value ratio(double num, double den, double scale = 1.0);

    bool isMissing() const { return std::holds_alternative<std::monostate>(v_); }
    bool isCount() const { return std::holds_alternative<std::int32_t>(v_); }
    bool isReal() const { return std::holds_alternative<double>(v_); }
    bool isText() const { return std::holds_alternative<std::string>(v_); }

    std::int32_t asCount() const { return std::get<std::int32_t>(v_); }
    double asReal() const { return std::get<double>(v_); }
    const std::string& asText() const { return std::get<std::string>(v_); }
    // The value as a number: a count or a real; empty for texts and missing.
    std::optional<double> number() const;

    bool operator==(const Value&) const = default;

private:
    using Storage = std::variant<std::monostate, std::int32_t, double, std::string>;
    explicit Value(Storage v) : v_(std::move(v)) {}
    Storage v_;
};

// The value in its report format: "%d", "%0.2f", "%0.1f%%" (exactly 100 as
// "%0.0f%%"), the text itself, or "   ---" when missing.
std::string formatValue(const Value& v, MeasureFormat format);

// Elapsed time as the reports print it: "%d:%d", or "%d:0%d" below ten seconds.
std::string formatMinutesSeconds(int seconds);

} // namespace tavi
