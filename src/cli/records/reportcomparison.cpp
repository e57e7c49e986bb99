#include "cli/records/reportcomparison.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

// The member names of both objects in the order of the record's text, because QJsonObject sorts them. Members
// that only the file has come last.
QStringList namesInOrder(const QJsonObject &record, const QJsonObject &file, const QByteArray &text)
{
    const auto place = [&text](const QString &name) { return text.indexOf('"' + name.toUtf8() + "\":"); };
    QStringList names = record.keys();
    std::stable_sort(names.begin(), names.end(),
                     [&place](const QString &a, const QString &b) { return place(a) < place(b); });
    const QStringList others = file.keys();
    for (const QString &name : others) {
        if (!record.contains(name))
            names.append(name);
    }
    return names;
}

QString asJson(const QJsonValue &value)
{
    if (value.isUndefined())
        return {};
    // QJsonDocument only takes arrays and objects.
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.sliced(1, text.size() - 2));
}

Difference firstDifference(const QJsonObject &record, const QJsonObject &file, const QByteArray &text)
{
    const QStringList names = namesInOrder(record, file, text);
    for (const QString &name : names) {
        const QJsonValue inRecord = record.value(name);
        const QJsonValue inFile = file.value(name);
        if (inRecord == inFile)
            continue;
        if (!inRecord.isObject() || !inFile.isObject())
            return {name, 0, asJson(inRecord), asJson(inFile)};
        Difference inner = firstDifference(inRecord.toObject(), inFile.toObject(), text);
        inner.field = name + u'.' + inner.field;
        return inner;
    }
    return {};
}

qsizetype firstDifferentByte(const QByteArray &a, const QByteArray &b)
{
    return std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
}

} // namespace

QString certificateIdIn(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object().value(u"certificateId").toString();
}

std::optional<Difference> compareReports(const QByteArray &record, const QByteArray &file)
{
    if (record == file)
        return std::nullopt;
    Difference difference = firstDifference(QJsonDocument::fromJson(record).object(),
                                            QJsonDocument::fromJson(file).object(), record);
    difference.position = firstDifferentByte(record, file);
    return difference;
}

} // namespace cli
