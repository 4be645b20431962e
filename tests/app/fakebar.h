#pragma once

#include "app/windowcontroll.h"

#include <QtCore/QStringList>

/// A view in the left or the bottom bar, as the controller knows it: writes down what it is asked.
struct FakeBar : BarContent
{
    FakeBar(QStringList &list, const char *bar) : calls(list), name(QLatin1String(bar)) {}
    void InitSetting() override { calls << name + QStringLiteral(" InitSetting"); }

    QStringList &calls;
    QString name;
};
