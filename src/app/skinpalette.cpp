#include "app/skinpalette.h"

#include "platform/skincolours.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

namespace {

struct RoleColour
{
    QPalette::ColorRole role = QPalette::NoRole;
    QColor colour;
};

constexpr RoleColour kColours[] = {
    {QPalette::Window, kMetal},
    {QPalette::WindowText, kPale},
    {QPalette::Base, kMetalRecess},
    {QPalette::AlternateBase, kMetal},
    {QPalette::Text, kPale},
    {QPalette::PlaceholderText, kFaint},
    {QPalette::Button, kMetalRaised},
    {QPalette::ButtonText, kPale},
    {QPalette::BrightText, kWhite},
    {QPalette::Highlight, kMoonDeep},
    {QPalette::HighlightedText, kWhite},
    {QPalette::ToolTipBase, kMetalRecess},
    {QPalette::ToolTipText, kPale},
    {QPalette::Link, kGold},
};
constexpr QPalette::ColorRole kTextRoles[] = {QPalette::WindowText, QPalette::Text,
                                              QPalette::ButtonText};

} // namespace

void useSkinPalette()
{
    QPalette palette(kMetalRaised, kMetal);
    for (const auto &[role, colour] : kColours)
        palette.setColor(role, colour);
    for (const QPalette::ColorRole role : kTextRoles)
        palette.setColor(QPalette::Disabled, role, kFaint);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}
