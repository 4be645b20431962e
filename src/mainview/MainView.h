#pragma once

#include "controls/custumwindow.h"
#include "controls/HoverButton.h"
#include "controls/pngListBox.h"
#include "controls/pngProgressBar.h"
#include "driver/driverlink.h"
#include "mainview/controltable.h"
#include "mainview/environment.h"
#include "model/xmlconfig.h"
#include "platform/doubleclickguard.h"

class PopupProgressBar;

/// The content of the main window and the controller of the whole utility: it owns the settings
/// store, the controls and the only link to the driver process. Profile indices are 0-based here,
/// 1-based in the driver's messages. User-interface thread only.
class MainView : public View
{
public:
    MainView(Environment environment, QWidget *parent);

    /// Start-up: loads the settings, builds the controls, shows the stored profile, observes the
    /// driver process and asks it for firmware version and lift distance. Writes nothing.
    void awakeFromNib() override;

    // Controller (mainview_controller.cpp)

    /// Makes a profile current, as it comes; one outside 0..9 shows and edits the first profile.
    void SetProfileID(std::int32_t index);
    /// Keeps whether there are unsaved changes, and enables Apply exactly then.
    void setApplyButtonStatus(bool changed);
    /// A left click on a control, told apart by its tag.
    void buttonAction(HoverButton *sender);
    /// What the close button does: writes the settings, tells the driver process, quits.
    void commitAndQuit();
    /// Shows the progress window, or brings it to front.
    void DisplayWriteDeviceBar();

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
    void changeCurrentButtonFunction(FunctionCode code);
    /// Assigns what was dropped on a mouse button, selected or not.
    void DragDropButtonAction(HoverButton *button);
    /// Shows the in-game mode and rebuilds all captions from the current profile.
    void initButtonSetting();
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
    /// Memory use in units of 128 bytes; 64 are 100 per cent, more is possible.
    std::uint32_t memoryUsage() const { return m_MSMemoryUsage; }

protected:
    void drawRect(Canvas &canvas) override;

private:
    struct Skin;
    struct Command;

    // Layout
    void buildControls();
    void AddCheckButton(const ControlRow &row, const Skin &skin);
    void AddButton(const ControlRow &row, const Skin &skin);
    HoverButton *addHoverButton(const ControlRow &row, const Skin &skin);
    void addMemoryUsageBar(const ControlRow &row, const Skin &skin);
    HoverButton *button(ControlId id) const { return m_buttons[static_cast<std::size_t>(id)]; }
    void progessbarAction(pngProgressBar *sender);
    void DrawProfileColorLine(Canvas &canvas, unsigned index);

    // Controller
    static const Command *commandOf(int tag);
    void commit();
    void applyAction(HoverButton *sender);
    void cancelAction(HoverButton *sender);
    void closeAction(HoverButton *sender);
    void minimiseAction(HoverButton *sender);
    void gameModeAction(HoverButton *sender);

    // Driver messages
    void observeDriver();
    void profileChanged(std::int32_t number);
    void WriteToFWChanged(std::int32_t position);
    void closeWriteDeviceBar();
    void GetFWNumber(std::int32_t number);
    void GetLiftDistance(std::int32_t code);

    // Mouse buttons
    void selectAction(HoverButton *sender);
    void setCheckButton(HoverButton *button, int buttonid);
    void assign(HoverButton *button, FunctionCode code);
    void DisplayButtonListBox(int buttonid);
    void ButtonListboxAction(pngListBox *sender);
    void closeChosenList(const QPointer<custumwindow> &list);
    void CloseButtonListBox(QWidget *sender);

    Environment m_environment;
    driver::DriverLink m_driver;
    xmlconfig m_pXMLconfig;

    SkinImage BKImage;
    std::array<HoverButton *, kControlCount> m_buttons{};
    pngProgressBar *MSMemoryUsageBar = nullptr;

    int m_curButtonID = -1;
    QPointer<custumwindow> pListbox;
    QPointer<pngListBox> pListboxView;
    bool bListboxPresent = false;
    DoubleClickGuard m_listClickGuard; ///< for those who double click a row

    custumwindow *pPopUpBarWindow = nullptr;
    PopupProgressBar *pPopUpBarView = nullptr;
    bool bDisplayWriteDeviceWindow = false;

    bool bChanged = false; ///< there are edits that the settings file does not hold
    std::uint32_t m_MSMemoryUsage = 0;
    std::uint32_t m_FWNumber = 0;
    std::uint32_t m_LiftDistance = 0;
};
