#include "mainview/MainView.h"

namespace {

constexpr const char *kUserGuide =
    "/Applications/Brenvik Kyr Torvane MMO Gaming Mouse/UserGuide.pdf";
constexpr const char *kOnlineProfiles = "https://profiles.brenvik.example/kyr-torvane";

template <std::uint32_t code>
bool pollsAt(const MainView & /*view*/)
{
    return m_Config.POLLING_RATE == code;
}

template <std::uint32_t code>
bool liftsAt(const MainView &view)
{
    return view.liftDistance() == code;
}

bool confirmsMacroDeletion(const MainView & /*view*/)
{
    return m_Config.MACRODEL_CONFIRM != 0;
}

} // namespace

/// One item of a menu: an operation, or the items of a submenu.
struct MainView::MenuRow
{
    const char *text;
    void (MainView::*run)() = nullptr;
    bool (*isChecked)(const MainView &view) = nullptr;
    std::span<const MenuRow> submenu = {};
};

std::vector<MenuItem> MainView::menuOf(std::span<const MenuRow> rows)
{
    std::vector<MenuItem> items;
    for (const MenuRow &row : rows) {
        MenuItem &item = items.emplace_back();
        item.text = QLatin1String(row.text);
        item.checked = row.isChecked && row.isChecked(*this);
        item.submenu = menuOf(row.submenu);
        if (row.run)
            item.action = {this, row.run};
    }
    return items;
}

void MainView::DisplayProfileMenu(HoverButton *sender)
{
    static constexpr MenuRow rows[] = {
        {"Export Profile", &MainView::ExportProfile},
        {"Import Profile", &MainView::ImportProfile},
    };
    ContextMenu::popUp(menuOf(rows), *sender);
}

void MainView::DisplayToolsMenu(HoverButton *sender)
{
    static constexpr MenuRow pollingRates[] = {
        {"250hz/ms", &MainView::menu250hz, pollsAt<3>},
        {"500hz/ms", &MainView::menu500hz, pollsAt<2>},
        {"1000hz/ms", &MainView::menu1000hz, pollsAt<1>},
    };
    static constexpr MenuRow liftDistances[] = {
        {"Default", &MainView::menuDefaultLift, liftsAt<2>},
        {"Lower", &MainView::menuLowerLift, liftsAt<1>},
        {"Lowest", &MainView::menuLowestLift, liftsAt<0>},
    };
    static constexpr MenuRow rows[] = {
        {"Polling Rate", nullptr, nullptr, pollingRates},
        // The mark of the item below stands here, on purpose.
        {"Lift Distance", nullptr, confirmsMacroDeletion, liftDistances},
        {"Show macro deletion confirmation", &MainView::MacroDeleteConfirm},
    };
    ContextMenu::popUp(menuOf(rows), *sender);
}

void MainView::DisplayHelpMenu(HoverButton *sender)
{
    static constexpr MenuRow rows[] = {
        {"User Guide", &MainView::OpenuserGuide},
        {"About", &MainView::OpenAbout},
    };
    ContextMenu::popUp(menuOf(rows), *sender);
}

void MainView::userGuideAction(HoverButton * /*sender*/)
{
    OpenuserGuide();
}

void MainView::OpenuserGuide()
{
    m_environment.openFile(kUserGuide);
}

void MainView::OnlineStorage()
{
    m_environment.openAddress(kOnlineProfiles);
}
