#include "mainview/MainView.h"
#include "platform/systemlog.h"

namespace {

/// Switching to the sixth profile leaves Apply disabled, on purpose.
constexpr int kProfileWithoutApply = 5;

} // namespace

MainView::MainView(Environment environment, QWidget *parent)
    : View(parent),
      m_environment(std::move(environment)),
      m_driver(*m_environment.notifications),
      m_urlLoader(m_environment.webTimeout),
      m_portrait([this] { update(); })
{
}

void MainView::awakeFromNib()
{
    m_pXMLconfig.setConfigfileName(m_environment.settingsPath);
    m_pXMLconfig.setFilePanels(m_environment.panels);
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
    checkProfileKey();
    initButtonSetting();
    if (pWindowControll)
        pWindowControll->refreshSetting();
    CalcMouseMemoryUsage();
}

/// The key of the current profile is on, and no other.
void MainView::checkProfileKey()
{
    for (int tag = kFirstProfileTag; tag <= kLastProfileTag; ++tag)
        GetButtonHandle(tag)->setChecked(false);
    const bool known = m_Config.PROFILE_ID < kProfileCount;
    const int index = known ? static_cast<int>(m_Config.PROFILE_ID) : 0;
    GetButtonHandle(kFirstProfileTag + index)->setChecked(true);
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
        {kFirstProfileTag, kLastProfileTag, &MainView::profileAction},
        {0x1024, 0x1024, &MainView::minimiseAction},
        {0x1025, 0x1025, &MainView::closeAction},
        {0x1026, 0x1026, &MainView::userGuideAction},
        {0x1027, 0x1027, &MainView::DisplayProfileMenu},
        {0x1028, 0x1028, &MainView::DisplayToolsMenu},
        {0x1029, 0x1029, &MainView::DisplayHelpMenu},
        {0x1030, 0x1030, &MainView::gameModeAction},
        {0x1031, 0x1031, &MainView::restoreAction},
        {0x1032, 0x1032, &MainView::saveOnBoardAction},
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

bool MainView::checkProfileChange()
{
    if (!bChanged)
        return false;
    DisplayWarnTwoWindow(QStringLiteral("Warnning!"),
                         QStringLiteral("Would you like to save changes?"));
    return true;
}

void MainView::ProfileChangeYESAction()
{
    m_pXMLconfig.WriteConfigFile();
}

void MainView::ProfileChangeNOAction()
{
    m_pXMLconfig.LoadConfigFile();
    for (std::uint32_t profile = 0; profile < kProfileCount; ++profile)
        overtakeLookups(profile);
}

void MainView::profileAction(HoverButton *sender)
{
    const int index = sender->tag() - kFirstProfileTag;
    const QPointer<MainView> alive(this);
    checkProfileKey(); // the click has switched its own on; the profile changes after the question
    checkProfileChange();
    if (!alive)
        return;
    SetProfileID(index);
    setApplyButtonStatus(index != kProfileWithoutApply);
    bChanged = false; // Apply would store the choice of profile, but no edit is pending
}

void MainView::restoreAction(HoverButton * /*sender*/)
{
    m_pXMLconfig.InitialProfile(m_Config.PROFILE_ID);
    if (pWindowControll)
        pWindowControll->initialSetting();
    update();
    setApplyButtonStatus(true);
}

void MainView::saveOnBoardAction(HoverButton * /*sender*/)
{
    if (!CheckProfileNoError(m_Config.PROFILE_ID))
        return;
    m_pXMLconfig.WriteConfigFile();
    DisplayWriteDeviceBar();
    PostSettingChange(0);
    setApplyButtonStatus(false);
}

void MainView::ImportProfile()
{
    const QPointer<MainView> alive(this);
    const bool hasRead = m_pXMLconfig.ImportProfile(m_Config.PROFILE_ID);
    if (!alive)
        return;
    if (hasRead)
        overtakeLookups(CurrentProfileIndex());
    m_pXMLconfig.WriteConfigFile();
    initButtonSetting();
    if (pWindowControll)
        pWindowControll->refreshSetting();
    update(); // the profile has another colour now
}

void MainView::ExportProfile()
{
    m_pXMLconfig.ExportProfile(m_Config.PROFILE_ID);
}

void MainView::setPollingRate(std::uint32_t code)
{
    SendPollingrate(static_cast<std::int32_t>(code));
    m_Config.POLLING_RATE = code;
    m_pXMLconfig.WriteConfigFile();
}

void MainView::menu1000hz()
{
    setPollingRate(1);
}

void MainView::menu500hz()
{
    setPollingRate(2);
}

void MainView::menu250hz()
{
    setPollingRate(3);
}

void MainView::setLiftDistance(std::uint32_t code)
{
    SendLiftDistance(static_cast<std::int32_t>(code));
    m_LiftDistance = code;
}

void MainView::menuLowestLift()
{
    setLiftDistance(0);
}

void MainView::menuLowerLift()
{
    setLiftDistance(1);
}

void MainView::menuDefaultLift()
{
    setLiftDistance(2);
}

void MainView::MacroDeleteConfirm()
{
    m_Config.MACRODEL_CONFIRM = m_Config.MACRODEL_CONFIRM ? 0 : 1;
    m_pXMLconfig.WriteConfigFile();
}
