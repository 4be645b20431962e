#include "app/skinpalette.h"

#include "platform/canvas.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

namespace {

struct RoleColour
{
    QPalette::ColorRole role = QPalette::NoRole;
    QColor colour;
};

constexpr QColor kGround(38, 30, 23);
constexpr QColor kRecess(13, 10, 8);
constexpr QColor kKey(58, 46, 34);
constexpr QColor kPale(222, 190, 128);
constexpr QColor kFaint(125, 118, 107);
constexpr QColor kLit(122, 72, 6);

constexpr RoleColour kColours[] = {
    {QPalette::Window, kGround},
    {QPalette::WindowText, kPale},
    {QPalette::Base, kRecess},
    {QPalette::AlternateBase, kGround},
    {QPalette::Text, kPale},
    {QPalette::PlaceholderText, kFaint},
    {QPalette::Button, kKey},
    {QPalette::ButtonText, kPale},
    {QPalette::BrightText, kWhite},
    {QPalette::Highlight, kLit},
    {QPalette::HighlightedText, kWhite},
    {QPalette::ToolTipBase, kRecess},
    {QPalette::ToolTipText, kPale},
    {QPalette::Link, kGold},
};
constexpr QPalette::ColorRole kTextRoles[] = {QPalette::WindowText, QPalette::Text,
                                              QPalette::ButtonText};

} // namespace

void useSkinPalette()
{
    QPalette palette(kKey, kGround);
    for (const auto &[role, colour] : kColours)
        palette.setColor(role, colour);
    for (const QPalette::ColorRole role : kTextRoles)
        palette.setColor(QPalette::Disabled, role, kFaint);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}
