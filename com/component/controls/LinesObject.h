#pragma once

#include "com/component/controls/ControlObject.h"
#include "module/host/CalculationForm.h"

namespace tellurix::windows {

/// The surcharge and deduction lines on the screen as the host's library sees them: Count, Statistic(i),
/// Designation(i), Value(i), References(i), Subset(i), Article(i) and SetLine(i, statistic, designation,
/// value, references, subset, article). The lines count from 0.
class LinesObject final : public ControlObject<host::CalculationForm> {
public:
    using ControlObject::ControlObject;

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return "Tellurix_Vertrag.Lines"; }
};

} // namespace tellurix::windows
