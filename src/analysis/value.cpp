// Measure values and their printed forms.
#include "analysis/value.h"

#include "base/format.h"

namespace tavi {

Value Value::ratio(double num, double den, double scale) {
    if (den <= 0)
        return Value();
    return real(num / den * scale);
}

std::optional<double> Value::number() const {
    if (isCount())
        return asCount();
    if (isReal())
        return asReal();
    return std::nullopt;
}

std::string formatValue(const Value& v, MeasureFormat fmt) {
    if (v.isMissing())
        return kMissingText;
    if (v.isText())
        return v.asText();
    if (v.isCount() && fmt != MeasureFormat::Percent && fmt != MeasureFormat::Mean)
        return format("%d", v.asCount());
    double x = *v.number();
    switch (fmt) {
    case MeasureFormat::Percent:
        return x == 100.0 ? format("%0.0f%%", x) : format("%0.1f%%", x);
    case MeasureFormat::Count:
        return format("%d", static_cast<int>(x));
    default:
        return format("%0.2f", x);
    }
}

std::string formatMinutesSeconds(int seconds) {
    int m = seconds / 60, s = seconds % 60;
    return s < 10 ? format("%d:0%d", m, s) : format("%d:%d", m, s);
}

} // namespace tavi
