#pragma once

#include "app/windowcontroll.h"
#include "controls/contextmenu.h"
#include "controls/faces.h"
#include "controls/pngProgressBar.h"
#include "controls/popuplist.h"
#include "controls/shapedcontent.h"
#include "driver/driverlink.h"
#include "mainview/controltable.h"
#include "mainview/environment.h"
#include "mainview/portrait.h"
#include "model/xmlconfig.h"
#include "platform/urlloading.h"

#include <span>

class PopupProgressBar;

/// The content of the main window and the controller of the whole utility: it owns the settings
/// store, the controls and the only link to the driver process. Profile indices are 0-based here,
/// 1-based in the driver's messages. User-interface thread only.
class MainView : public View,
                 public MainContent,
                 public ShapedContent,
                 private UrlConnectionDelegate
{
public:
    MainView(Environment environment, QWidget *parent);

    /// Start-up: loads the settings, builds the controls, shows the stored profile, observes the
    /// driver process and asks it for firmware version and lift distance. Writes nothing.
    void awakeFromNib() override;

    /// The controller of the bars; it outlives the view's use of it. To be set before
    /// awakeFromNib().
    void setWindowControll(windowcontroll *controll) { pWindowControll = controll; }

    const SkinImage &background() const override { return BKImage; }

    // Controller (mainview_controller.cpp)

    /// Makes a profile current, as it comes; one outside 0..9 shows and edits the first profile.
    void SetProfileID(std::int32_t index);
    /// Keeps whether there are unsaved changes, and enables Apply exactly then.
    void setApplyButtonStatus(bool changed) override;
    /// A left click on a control, told apart by its tag.
    void buttonAction(HoverButton *sender);
    /// What the close button does: writes the settings, tells the driver process, quits.
    void commitAndQuit();
    /// Asks whether to save changes, when there are any; true when it asked. The answer has been
    /// acted on then.
    bool checkProfileChange();
    /// The answers: writes the settings, or reloads them, dropping what was not saved in any
    /// profile.
    void ProfileChangeYESAction();
    void ProfileChangeNOAction();
    /// Lets the player load a file into the current profile. The settings are written then, also
    /// when the panel was cancelled.
    void ImportProfile();
    /// Lets the player save the current profile to a file.
    void ExportProfile();
    /// Set the polling rate, store it and write the settings.
    void menu1000hz();
    void menu500hz();
    void menu250hz();
    /// Set the lift distance, which the settings do not hold.
    void menuLowestLift();
    void menuLowerLift();
    void menuDefaultLift();
    /// Switches the warning before a macro is deleted on or off and writes the settings.
    void MacroDeleteConfirm();

    // Dialogs (mainview_dialogs.cpp)

    /// Shows the progress window, or brings it to front.
    void DisplayWriteDeviceBar();
    /// Tells something in a dialog of its own; returns when that is closed.
    void DisplayWarnOneWindow(const QString &caption, const QString &strDiaplayText);
    /// Asks something; returns when it is answered and ProfileChangeYESAction() or
    /// ProfileChangeNOAction() is done.
    void DisplayWarnTwoWindow(const QString &caption, const QString &strDiaplayText);
    /// Shows the versions of program and firmware; returns when that is closed.
    void OpenAbout();
    /// Shows the dialog that names the current profile's character, or brings it to front; returns
    /// at once.
    void DisplayCharInfo();

    // Menus (mainview_menus.cpp)

    /// Each pops up a menu, built anew, below its button.
    void DisplayProfileMenu(HoverButton *sender);
    void DisplayToolsMenu(HoverButton *sender);
    void DisplayHelpMenu(HoverButton *sender);
    /// Opens the user guide; a missing file is only logged.
    void OpenuserGuide();
    /// Opens the maker's profile page. No control calls it.
    void OnlineStorage();
    /// Does nothing, and no control calls it.
    void EditGameApp() {}

    // Driver messages (mainview_driver.cpp)

    /// Tells the driver process to take the settings file; the requested type makes no difference,
    /// on purpose.
    void PostSettingChange(int requestedType);
    /// 1 = 1000 Hz, 2 = 500 Hz, 3 = 250 Hz.
    void SendPollingrate(std::int32_t code);
    /// 0 = lowest, 1 = lower, 2 = default.
    void SendLiftDistance(std::int32_t code);
    void PostGetFWNumber();
    void PostGetLiftDistance();

    /// The firmware version last reported; 0 = unknown.
    std::uint32_t firmwareNumber() const { return m_FWNumber; }
    /// The lift distance last reported or set.
    std::uint32_t liftDistance() const { return m_LiftDistance; }

    // Mouse buttons (mainview_buttons.cpp)

    /// A right click on a control.
    void buttonRightAction(HoverButton *sender);
    /// Assigns a function to the selected mouse button; nothing when none is selected.
    void changeCurrentButtonFunction(FunctionCode code) override;
    /// The buttons that carry macros show the names that these have now, and there is something to
    /// apply.
    void macrosChanged() override;
    /// Assigns what was dropped on a mouse button, selected or not.
    void DragDropButtonAction(HoverButton *button);
    /// Shows the in-game mode and rebuilds all captions from the current profile.
    void initButtonSetting() override;
    /// Shows in the side panels where a function lives.
    void findFunctionItem(FunctionCode code);
    /// Writes the caption of a code in the current profile on a button.
    void SetButtonCaption(HoverButton *button, FunctionCode functionid);
    /// The button with an id: 0..13 the mouse buttons, 4116..4125 the profile buttons; else null.
    HoverButton *GetButtonHandle(int id) const;
    /// The selected mouse button, 0..13; negative when none is.
    int currentButton() const { return m_curButtonID; }

    // Memory gauge (mainview_memory.cpp)

    /// Bytes that a function takes in the mouse's memory, in the current profile. Only the low 16
    /// bits of the code count.
    static std::uint32_t GetMacroBlockInfo(FunctionCode code);
    /// Recomputes the memory use of the current profile and moves the gauge.
    void CalcMouseMemoryUsage();
    /// Whether a profile (0-based) can be stored in the mouse; if not, the player has been told
    /// why.
    bool CheckProfileNoError(std::uint32_t profile);
    /// Memory use in units of 128 bytes; 64 are 100 per cent, more is possible.
    std::uint32_t memoryUsage() const { return m_MSMemoryUsage; }

    // Game character (mainview_character.cpp)

    /// What ended the character dialog, by its button's tag: on OK the current profile's character
    /// is looked up.
    void CharInfoAction(std::int32_t sender);
    /// Asks the game service; the answer comes through the event loop. A request that is under way
    /// goes on and adds to what is received for the new one, on purpose.
    void openUrl(const std::string &url);
    /// Fetches a portrait and puts it beside the settings file, then calls `done` with its path,
    /// whether or not the portrait came to be there.
    void downloadUrl(const std::string &url,
                     const std::function<void(const std::string &path)> &done);
    /// A class by the service's number; empty for a number without one.
    static const char *GetKyrClassName(std::int32_t id);

    void redraw() override { update(); }

protected:
    void drawRect(Canvas &canvas) override;
    void mouseDown(const ViewMouseEvent &event) override;

private:
    struct Command;
    struct Lookup;

    // Layout
    void buildControls();
    void AddCheckButton(const ControlRow &row, const Faces &skin);
    void AddButton(const ControlRow &row, const Faces &skin);
    HoverButton *addHoverButton(const ControlRow &row, const Faces &skin);
    void addMemoryUsageBar(const ControlRow &row, const Faces &skin);
    void orderTabs();
    HoverButton *button(ControlId id) const { return m_buttons[static_cast<std::size_t>(id)]; }
    void progessbarAction(pngProgressBar *sender);
    void DrawProfileColorLine(Canvas &canvas, unsigned index);

    // Controller
    static const Command *commandOf(int tag);
    void checkProfileKey();
    void commit();
    void applyAction(HoverButton *sender);
    void cancelAction(HoverButton *sender);
    void closeAction(HoverButton *sender);
    void minimiseAction(HoverButton *sender);
    void gameModeAction(HoverButton *sender);
    void profileAction(HoverButton *sender);
    void restoreAction(HoverButton *sender);
    void saveOnBoardAction(HoverButton *sender);
    void userGuideAction(HoverButton *sender);
    void setPollingRate(std::uint32_t code);
    void setLiftDistance(std::uint32_t code);

    // Driver messages
    void observeDriver();
    void profileChanged(std::int32_t number);
    void WriteToFWChanged(std::int32_t position);
    void GetFWNumber(std::int32_t number);
    void GetLiftDistance(std::int32_t code);

    // Dialogs
    void closeWriteDeviceBar();
    template <class Dialog>
    Dialog *makeDialog();

    // Menus
    struct MenuRow;
    std::vector<MenuItem> menuOf(std::span<const MenuRow> rows);

    // Mouse buttons
    void selectAction(HoverButton *sender);
    void setCheckButton(HoverButton *button, int buttonid);
    void assign(HoverButton *button, FunctionCode code);
    void DisplayButtonListBox(int buttonid);
    void ButtonListboxAction(pngListBox *sender);
    void CloseButtonListBox(QWidget *sender);

    // Character badge (mainview_badge.cpp)
    void DisplayCharacterinfo(Canvas &canvas);

    // Game character
    void didReceiveResponse(int statusCode) override;
    void didReceiveData(std::string_view chunk) override;
    void didFailWithError(const UrlError &error) override;
    void connectionDidFinishLoading() override;
    void readReply(const std::shared_ptr<Lookup> &lookup);
    void fetchPortrait(const std::shared_ptr<Lookup> &lookup);
    void storeCharacter(const Lookup &lookup, const std::string &portrait);
    void overtakeLookups(std::uint32_t profile);

    Environment m_environment;
    driver::DriverLink m_driver;
    xmlconfig m_pXMLconfig;
    QPointer<windowcontroll> pWindowControll;

    SkinImage BKImage;
    std::array<HoverButton *, kControlCount> m_buttons{};
    pngProgressBar *MSMemoryUsageBar = nullptr;

    int m_curButtonID = -1;
    PopupList m_quickList;

    custumwindow *pPopUpBarWindow = nullptr;
    PopupProgressBar *pPopUpBarView = nullptr;
    bool bDisplayWriteDeviceWindow = false;

    bool bChanged = false; ///< there are edits that the settings file does not hold
    std::uint32_t m_MSMemoryUsage = 0;
    std::uint32_t m_FWNumber = 0;
    std::uint32_t m_LiftDistance = 0;

    QPointer<custumwindow> pCharInfoWindow;
    bool bDisplayCharinfoWindow = false;
    std::optional<std::string> receivedData; ///< of the request under way
    unsigned m_lookups = 0;                  ///< that were answered
    /// For each profile the number of the lookup that it has its character from.
    std::array<unsigned, kProfileCount> m_storedLookups{};
    UrlLoader m_urlLoader;
    Portrait m_portrait;
};
