#pragma once

#include "macrostage.h"
#include "mainview/fullsettings.h"
#include "support/dialogs.h"

using LogLines = std::vector<std::string>;

/// The program with its macros listed on the open right bar, where they are edited and deleted. No
/// mouse button is selected, deletions are not asked about, and what stands in the settings file
/// shows whether it was written.
struct MacroEditStage : MacroStage
{
    explicit MacroEditStage(unsigned count) : MacroStage(count)
    {
        m_Config.MACRODEL_CONFIRM = 0;
        openAt(PanelId::Macro);
        program.settings.put(untouched());
        program.log.lines.clear();
    }

    /// Fills the whole record with made-up content; the third profile is current and has so many
    /// macros.
    void fillAll(unsigned count)
    {
        fillRecord(21);
        m_Config.MACRODEL_CONFIRM = 0;
        m_Config.GAME_MODE = 0;
        program.reportProfile(3);
        nameMacros(count);
        listAgain();
    }
    /// Shows macros that were named behind the program's back.
    void listAgain()
    {
        clickHeader(PanelId::Macro);
        clickHeader(PanelId::Macro);
        program.log.lines.clear();
    }

    void clickNew() const { pointer::click(headerButton("btnNew")); }
    void clickDelete() const { pointer::click(headerButton("btnDelete")); }
    /// Clicks a row, scrolling down to it.
    void select(int row) const
    {
        for (unsigned page = 0; page < kMacroCount && !showsWhole(row); ++page)
            pageDown();
        clickRow(macros(), row, kMacroRowHeight);
    }
    void doubleClickRow(int row) const { pointer::doubleClick(macros(), inRow(row)); }
    /// A double click of which the second release is still to come. A person's comes while the
    /// editor is open, and the window may be gone by then.
    void pressTwice(int row) const
    {
        QWindow *const window = pointer::windowOf(macros());
        const QPoint at = pointer::inWindow(macros(), inRow(row));
        pointer::press(macros(), inRow(row));
        // QTest's own lets the time of a double click pass.
        qt_handleMouseEvent(window, at, window->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                            QEvent::MouseButtonRelease, {}, ++QTest::lastMouseTimestamp);
        pointer::press(macros(), inRow(row));
    }
    void releaseIn(int row) const { pointer::release(macros(), inRow(row)); }
    /// What the rows, which must all show, carry when they are dragged.
    std::vector<QString> carried() const
    {
        std::vector<QString> texts;
        for (int row = 0; row < macros().getCount(); ++row) {
            texts.push_back(draggedText(macros(), inRow(row)));
            pointer::release(macros(), inRow(row));
        }
        return texts;
    }

    bool isFileUntouched() const { return program.settings.bytes() == untouched(); }
    /// Whether nothing that a player has is kept or sent: not in the file, not to the mouse.
    bool isNothingSaved() const
    {
        return isFileUntouched() && program.requestsSinceStart().empty();
    }

private:
    static QByteArray untouched() { return QByteArrayLiteral("as it was"); }
    static QPoint inRow(int row) { return {40, row * kMacroRowHeight + kMacroRowHeight / 2}; }
};

/// The codes of the first macros, as a drag carries them.
inline std::vector<QString> macroCodes(unsigned count)
{
    std::vector<QString> texts;
    for (unsigned slot = 0; slot < count; ++slot)
        texts.push_back(QString::number(256 + slot));
    return texts;
}

/// One way to end a dialog.
struct Ending
{
    const char *name;
    void (*end)(const OpenDialog &dialog);
};

/// All that are no OK.
inline constexpr Ending kRefusals[] = {
    {"Cancel", [](const OpenDialog &dialog) { dialog.click("ButtonCancel"); }},
    {"close button", [](const OpenDialog &dialog) { dialog.click("ButtonClose"); }},
    {"Escape", [](const OpenDialog &dialog) { dialog.key(Qt::Key_Escape); }},
    {"the desktop", [](const OpenDialog &dialog) { dialog.closeByTheDesktop(); }},
};

inline void refusalRows()
{
    QTest::addColumn<Ending>("ending");
    for (const Ending &ending : kRefusals)
        QTest::newRow(ending.name) << ending;
}

/// Drags a dialog by a place of its background, and gives how far it has moved.
inline QPoint draggedBy(const OpenDialog &dialog, QPoint from, QPoint way)
{
    QWidget &window = dialog.window();
    const QPoint before = window.pos();
    const QPoint start = window.mapToGlobal(from);
    pointer::press(window, from);
    for (const QPoint step : {way / 2, way})
        pointer::move(window, window.mapFromGlobal(start + step));
    pointer::release(window, from);
    return window.pos() - before;
}

/// Whether a dialog stands at the main window's lower left corner: a borderless window that belongs
/// to it and keeps the others from taking input.
inline bool standsAtMainWindow(const OpenDialog &dialog, const custumwindow &main, QSize size)
{
    const auto &window = static_cast<const custumwindow &>(dialog.window());
    const UpRect at = main.frame();
    return window.frame() == UpRect{at.x, at.y, size.width(), size.height()} &&
           window.parentWidget() == &main && window.windowType() == Qt::Dialog &&
           (window.windowFlags() & Qt::FramelessWindowHint) &&
           window.windowModality() == Qt::ApplicationModal && window.isVisible();
}

/// Writes a name into the editor, where the keyboard is in the field for it.
inline void typeName(const OpenDialog &editor, const char *name)
{
    QWindow *const window = editor.window().windowHandle();
    QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier);
    for (const char *letter = name; *letter; ++letter)
        QTest::keyClick(window, *letter);
}

/// What stands in the field for the name.
inline QString nameIn(const OpenDialog &editor)
{
    return PanelsStage::part(&editor.window(), "pTextfieldMacroName")->property("text").toString();
}
