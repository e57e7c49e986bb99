#include "certificate/readback.h"

#include "model/wipereport.h"

ReadBack readBackOf(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    if (!outcome || !report.verificationPassed)
        return ReadBack::AsReported;
    if (report.verificationSampleSize <= 0 || outcome->has(ShortfallKind::NotReadBack))
        return ReadBack::NotRead;
    return outcome->has(ShortfallKind::ReadBackImpossible) ? ReadBack::NotComparable : ReadBack::AsReported;
}
