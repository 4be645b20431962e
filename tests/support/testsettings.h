#pragma once

#include "model/xmlconfig.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

/// A private settings file in a folder of its own, and a zero-filled record.
class TestSettings
{
public:
    TestSettings() { m_Config = {}; }

    std::string path() const
    {
        return m_folder.filePath(QStringLiteral("KT7R4Setting.xml")).toStdString();
    }
    QString folder() const { return m_folder.path(); }

    void put(const QByteArray &bytes) const
    {
        QFile file(QString::fromStdString(path()));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the test's settings file");
    }
    QByteArray bytes() const
    {
        QFile file(QString::fromStdString(path()));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};
