#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVariantMap>
#include <QtCore/QXmlStreamReader>

/// Property lists made and read without the program's own means.

inline QByteArray plistEntry(const QByteArray &key, const QByteArray &element)
{
    return "<key>" + key + "</key>" + element;
}

inline QByteArray plistDictionary(const QByteArray &entries)
{
    return "<dict>" + entries + "</dict>";
}

inline QByteArray plistWithRoot(const QByteArray &element)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + element +
           "</plist>\n";
}

/// A property list whose root dictionary holds `entries`.
inline QByteArray plistOf(const QByteArray &entries)
{
    return plistWithRoot(plistDictionary(entries));
}

namespace detail {

inline QVariant readPlistValue(QXmlStreamReader &xml)
{
    if (xml.name() == QLatin1String("integer"))
        return xml.readElementText().toLongLong();
    if (xml.name() == QLatin1String("string"))
        return xml.readElementText();
    if (xml.name() != QLatin1String("dict")) {
        xml.raiseError(QStringLiteral("unexpected element"));
        return {};
    }
    QVariantMap dictionary;
    while (xml.readNextStartElement()) {
        const QString key = xml.readElementText();
        if (dictionary.contains(key) || !xml.readNextStartElement())
            xml.raiseError(QStringLiteral("a key twice or without a value"));
        else
            dictionary[key] = readPlistValue(xml);
    }
    return dictionary;
}

} // namespace detail

/// The root dictionary of a property list of integers, strings and dictionaries: qlonglong, QString
/// and QVariantMap. Empty when `bytes` are anything else.
inline QVariantMap readPlist(const QByteArray &bytes)
{
    QXmlStreamReader xml(bytes);
    const bool isPlist = xml.readNextStartElement() && xml.name() == QLatin1String("plist") &&
                         xml.attributes().value(QLatin1String("version")) == QLatin1String("1.0") &&
                         xml.readNextStartElement();
    const QVariant root = isPlist ? detail::readPlistValue(xml) : QVariant();
    while (!xml.atEnd())
        xml.readNext();
    return xml.hasError() ? QVariantMap() : root.toMap();
}
