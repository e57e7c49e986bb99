#include "certificate/glyphnames.h"
#include "fuzz/checks.h"

#include <cstddef>
#include <cstdint>

// The certificate as Qt's writer made it, damaged.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray pdf(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto same = [](const QString &named) { return named; };
    require(withGlyphNames(pdf, same) == pdf, "right names change nothing");

    const auto other = [](const QString &named) { return named + u'x'; };
    const QByteArray changed = withGlyphNames(pdf, other);
    require(changed.startsWith(pdf), "the writer's bytes stay");
    require(changed == pdf || changed.endsWith("\n%%EOF\n"), "an update ends as a file does");
    return 0;
}
