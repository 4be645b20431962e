#include "platform/notificationcenter.h"

std::optional<std::int32_t> integerValue(const QVariantMap &userInfo, const QString &key)
{
    const QVariant value = userInfo.value(key);
    switch (value.typeId()) {
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return static_cast<std::int32_t>(value.toLongLong());
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return static_cast<std::int32_t>(value.toULongLong());
    default:
        return {};
    }
}
