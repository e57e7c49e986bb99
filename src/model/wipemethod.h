#pragma once

#include <QCoreApplication>
#include <QList>
#include <QMetaType>
#include <QString>

/// The data of one overwrite pass. The numbers are fixed; an out-of-range number is kept, not corrected.
enum class PatternType : qint32 {
    Zeros = 0,      ///< every byte 0x00
    Ones = 1,       ///< every byte 0xFF
    Random = 2,     ///< fresh pseudo-random bytes
    Custom = 3,     ///< every byte equal to PassPattern::value
    Complement = 4, ///< the bitwise complement of the buffer's content; not used by a built-in method
};

/// One overwrite pass.
struct PassPattern
{
    PatternType type = PatternType::Zeros;
    quint8 value = 0;    ///< the byte of a Custom pass
    bool verify = false; ///< read the pass back and check it

    bool operator==(const PassPattern &) const = default;
};

/// One erasure standard: a name, a security level and the passes, first to last.
struct WipeMethod
{
    Q_DECLARE_TR_FUNCTIONS(WipeMethod)

public:
    /// Numbers of the standards, as stored in reports.
    enum Type : qint32 {
        Nist80088 = 0,
        BritishHmgIs5 = 1,
        Dod522022M = 2,
        GermanVsitr = 3,
        Gutmann = 4,
    };

    QString name;        ///< never translated
    QString description; ///< in the language installed at construction
    qint32 type = 0;     ///< the requested number, even without a standard
    QList<PassPattern> passes;
    qint32 level = 1; ///< security level, 1 to 5

    /// NIST 800-88.
    WipeMethod();

    /// The standard with that number. An unknown number gives NIST 800-88 and stays in `type`.
    static WipeMethod fromType(qint32 type);

    /// The standards that this program offers, in the order of their numbers.
    static QList<WipeMethod> allMethods();

    /// Translated name of the security level.
    QString levelName() const;

    int passCount() const { return static_cast<int>(passes.size()); }

    bool operator==(const WipeMethod &) const = default;

private:
    explicit WipeMethod(qint32 number);
};

Q_DECLARE_METATYPE(PassPattern)
Q_DECLARE_METATYPE(WipeMethod)
