#include "fuzz/checks.h"
#include "platform/storagereplies.h"

#include <cstddef>
#include <cstdint>

// What devices say of themselves, in the layouts of the storage stack.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace platform;
    const QByteArray reply(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));

    const DeviceDescriptor descriptor = decodeDeviceDescriptor(reply);
    require(descriptor.serialNumber.size() <= reply.size(), "a serial number is a part of the reply");
    for (const QString &text : {descriptor.serialNumber, descriptor.productId}) {
        require(text == text.trimmed(), "no blanks around a text");
        for (const QChar character : text)
            require(character.unicode() >= 0x20 && character.unicode() != 0x7f, "no control characters");
    }
    const DeviceDescriptor again = decodeDeviceDescriptor(encodeDeviceDescriptor(descriptor));
    require(again.serialNumber == descriptor.serialNumber && again.productId == descriptor.productId &&
                again.busType == descriptor.busType && again.removableMedia == descriptor.removableMedia,
            "what is written reads back the same");

    const QList<Extent> extents = decodeExtents(reply);
    require(decodeExtents(encodeExtents(extents)).size() == extents.size(), "extents read back the same");
    require(liesOnlyOn(extents, 0) == false || !extents.isEmpty(), "no extents lie on no drive");

    const QString name = decodeWorldWideName(reply);
    require(name.isEmpty() || name.startsWith(u"naa.") || name.startsWith(u"eui."),
            "a world-wide name has its kind before it");
    static_cast<void>(decodeHolders(reply));
    return 0;
}
