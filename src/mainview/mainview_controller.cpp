#include "dialogs/PopupProgressBar.h"
#include "mainview/MainView.h"
#include "platform/systemlog.h"

MainView::MainView(Environment environment, QWidget *parent)
    : View(parent), m_environment(std::move(environment)), m_driver(*m_environment.notifications)
{
}

void MainView::awakeFromNib()
{
    m_pXMLconfig.setConfigfileName(m_environment.settingsPath);
    m_pXMLconfig.LoadConfigFile();
    buildControls();
    m_curButtonID = -1;
    SetProfileID(static_cast<std::int32_t>(m_Config.PROFILE_ID));
    m_FWNumber = 0;
    observeDriver();
    PostGetFWNumber();
    PostGetLiftDistance();
    bDisplayWriteDeviceWindow = false;
    setApplyButtonStatus(false);
}

void MainView::SetProfileID(std::int32_t index)
{
    m_Config.PROFILE_ID = static_cast<std::uint32_t>(index);
    for (int tag = kFirstProfileTag; tag <= kLastProfileTag; ++tag)
        GetButtonHandle(tag)->setChecked(false);
    const bool known = index >= 0 && index < static_cast<std::int32_t>(kProfileCount);
    GetButtonHandle(kFirstProfileTag + (known ? index : 0))->setChecked(true);
    initButtonSetting();
    CalcMouseMemoryUsage();
}

void MainView::setApplyButtonStatus(bool changed)
{
    bChanged = changed;
    button(ControlId::ButtonApply)->setDisable(!changed);
}

/// What a click on the controls with the tags first..last does.
struct MainView::Command
{
    int first;
    int last;
    void (MainView::*run)(HoverButton *sender);
};

const MainView::Command *MainView::commandOf(int tag)
{
    static constexpr Command commands[] = {
        {kFirstButtonTag, kLastButtonTag, &MainView::selectAction},
        {0x1011, 0x1011, &MainView::closeAction},
        {0x1012, 0x1012, &MainView::cancelAction},
        {0x1013, 0x1013, &MainView::applyAction},
        {0x1024, 0x1024, &MainView::minimiseAction},
        {0x1025, 0x1025, &MainView::closeAction},
        {0x1030, 0x1030, &MainView::gameModeAction},
    };
    const auto holds = [tag](const Command &command) {
        return tag >= command.first && tag <= command.last;
    };
    const auto *const found = std::ranges::find_if(commands, holds);
    return found == std::end(commands) ? nullptr : found;
}

void MainView::buttonAction(HoverButton *sender)
{
    if (const Command *command = commandOf(sender->tag()))
        (this->*command->run)(sender);
}

void MainView::commit()
{
    m_pXMLconfig.WriteConfigFile();
    PostSettingChange(10);
}

void MainView::commitAndQuit()
{
    commit();
    m_environment.quit();
}

void MainView::closeAction(HoverButton * /*sender*/)
{
    commitAndQuit();
}

void MainView::cancelAction(HoverButton * /*sender*/)
{
    systemLog("Button 1 was clicked");
    m_environment.quit();
}

void MainView::applyAction(HoverButton * /*sender*/)
{
    commit();
    setApplyButtonStatus(false);
}

void MainView::minimiseAction(HoverButton * /*sender*/)
{
    window()->showMinimized();
}

void MainView::gameModeAction(HoverButton * /*sender*/)
{
    m_Config.GAME_MODE = m_Config.GAME_MODE ? 0 : 1;
    initButtonSetting();
}

void MainView::DisplayWriteDeviceBar()
{
    if (!pPopUpBarWindow) {
        pPopUpBarWindow =
            new custumwindow({0, 0, PopupProgressBar::kWidth, PopupProgressBar::kHeight}, window());
        pPopUpBarWindow->setObjectName(QStringLiteral("pPopUpBarWindow"));
        pPopUpBarWindow->setWindowTitle(QStringLiteral("Applying profile to on-board memory..."));
        pPopUpBarView = new PopupProgressBar(pPopUpBarWindow);
        pPopUpBarWindow->setContentView(pPopUpBarView);
        pPopUpBarWindow->setCloseRequest({this, &MainView::closeWriteDeviceBar});
    }
    orderFront(*pPopUpBarWindow);
    if (bDisplayWriteDeviceWindow)
        return;
    pPopUpBarWindow->center();
    pPopUpBarView->SetProgressPos(0); // not where the last write ended
    bDisplayWriteDeviceWindow = true;
}
