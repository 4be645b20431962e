#include "macro/MacroView.h"

#include "model/fixedtext.h"
#include "platform/numbers.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethod>

#include <algorithm>

using namespace macrolayout;

namespace {

constexpr std::int32_t kLeastLoops = 1;
constexpr std::int32_t kMostLoops = 999;
constexpr const char *kDefaultName = "Custom";

void store(std::span<char> field, const QString &text)
{
    SetText(field, text.toStdString());
}

} // namespace

/// A field without a number counts as 0.
void MacroView::takeLoopCount()
{
    m_MacroInfo.MACRO_LOOP =
        static_cast<std::uint32_t>(leadingInteger(pLoopTextfield->text().toStdString()));
}

bool MacroView::hasLoopError() const
{
    const auto count = static_cast<std::int32_t>(m_MacroInfo.MACRO_LOOP);
    return m_MacroInfo.bLOOP == 1 && (count < kLeastLoops || count > kMostLoops);
}

void MacroView::takeTexts()
{
    // What is still being composed counts: a click on a button leaves the keyboard in the field.
    QGuiApplication::inputMethod()->commit();
    const QString name = pTextfieldMacroName->plainText();
    store(m_MacroInfo.MACRO_NAME, name.isEmpty() ? QString::fromLatin1(kDefaultName) : name);
    store(m_MacroInfo.COPY_PASTER, pCopyTextfield->plainText());
}

/// Whole slots, whatever the views count: a list that a click has shortened keeps its old events
/// behind the new ones, on purpose.
void MacroView::takeEvents()
{
    const auto take = [](const MacroDisplay &view, std::span<KeymapEvent> slots) {
        std::ranges::copy(view.getKeymapInfo().first(slots.size()), slots.begin());
    };
    take(*pMacroDisplayView, std::span(m_MacroInfo.KEYMAP).first(kMostMacroEvents));
    take(*pStartDisplayView, m_MacroInfo.STARTKEY);
    take(*pSendDisplayView, m_MacroInfo.SENDKEY);
}

void MacroView::confirm()
{
    takeTexts();
    takeLoopCount();
    if (hasLoopError()) {
        // In a mode that hides the field, too: on purpose the dialog then stays without a sign.
        pLoopTextfield->setFocus(Qt::OtherFocusReason);
        return;
    }
    takeEvents();
    saveMacroInfo();
    answer(kTagOK);
}

/// Null where there is none.
MacroInfo *MacroView::slotToSave() const
{
    auto &macros = CurrentProfile().MACRO;
    if (m_MacroID >= 0)
        return m_MacroID < static_cast<std::int32_t>(kMacroCount) ? &macros[m_MacroID] : nullptr;
    auto *const free = std::ranges::find_if(
        macros, [](const MacroInfo &macro) { return GetText(macro.MACRO_NAME).empty(); });
    return m_MacroID == -1 && free != std::end(macros) ? free : nullptr;
}

void MacroView::saveMacroInfo()
{
    MacroInfo *const slot = slotToSave();
    m_hasSaved = slot != nullptr;
    if (slot)
        *slot = m_MacroInfo;
}
