#include "panels/charInfoView.h"

#include "controls/fieldframe.h"
#include "model/fixedtext.h"
#include "model/regions.h"
#include "model/settings.h"
#include "platform/systemlog.h"

#include <QtWidgets/QApplication>

using namespace charinfo;

namespace {

constexpr int kRegionListTag = 0x2000;
constexpr int kLabelSize = 11;

constexpr char kTitle[] = "Add a Kyr Character";

struct Label
{
    const char *text = "";
    UpRect rect;
    TextAlign align = TextAlign::Left;
};

constexpr Label kLabels[] = {
    {kTitle, {15, 192, 250, 15}, TextAlign::Left},
    {"Realm:", {10, 120, 100, 20}, TextAlign::Right},
    {"Character Name:", {15, 92, 100, 20}, TextAlign::Right},
    {"Region:", {296, 145, 85, 15}, TextAlign::Left},
};

constexpr std::array<const char *, kRegionCount> regionNames()
{
    std::array<const char *, kRegionCount> names{};
    for (std::size_t code = 0; code < kRegionCount; ++code)
        names[code] = kRegions[code].caption;
    return names;
}

constexpr auto kRegionNames = regionNames();

} // namespace

struct charInfoView::FieldRow
{
    const char *name = "";
    UpRect rect;
    const char *description = "";
    decltype(&CharacterInfo::SERVER) field = nullptr;
};

const std::array<charInfoView::FieldRow, charInfoView::kFieldCount> charInfoView::kFields = {{
    {"pTextfieldRealm", {120, 117, 150, 24}, "Realm", &CharacterInfo::SERVER},
    {"pTextfieldName", {120, 88, 150, 24}, "Character Name", &CharacterInfo::NAME},
}};

charInfoView::charInfoView(QWidget *parent) : View(parent)
{
    setFrame({0, 0, kWidth, kHeight});
    window()->setWindowTitle(QLatin1String(kTitle));
    setAccessibleName(window()->windowTitle());
    buildFields();
    buildButtons();
    setRegionButton(0);
    m_fields[Realm]->setFocus();
    connect(qApp, &QApplication::focusChanged, this, &charInfoView::keyboardMoved);
}

void charInfoView::buildFields()
{
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const FieldRow &row = kFields[i];
        m_fields[i] = new TextField(this);
        m_fields[i]->setObjectName(QLatin1String(row.name));
        m_fields[i]->setAccessibleName(QLatin1String(row.description));
        m_fields[i]->setFrame(row.rect);
    }
}

void charInfoView::buildButtons()
{
    const Faces faces{SkinImage::named("charinfo_n"), SkinImage::named("charinfo_o"),
                      SkinImage::named("charinfo_d")};
    BKImage = faces.normal;
    for (const ButtonRow &row : kButtons) {
        HoverButton *const button = makeButton(this, row, faces);
        button->setAction({this, &charInfoView::buttonAction});
        if (row.tag == kRegionTag)
            ButtonRegion = button;
        else if (row.tag == kCharInfoOK)
            ButtonOK = button;
        else if (row.tag == kCharInfoCancel)
            ButtonCancel = button;
    }
    m_popup.attachTo(*ButtonRegion);
}

void charInfoView::drawRect(Canvas &canvas)
{
    canvas.clear();
    canvas.drawImage(BKImage);
    for (const Label &label : kLabels)
        canvas.drawLine(QLatin1String(label.text), label.rect, kGold, label.align, kLabelSize);
    for (std::size_t i = 0; i < kFieldCount; ++i)
        drawFieldFrame(canvas, kFields[i].rect, *m_fields[i]);
}

void charInfoView::buttonAction(HoverButton *sender)
{
    switch (sender->tag()) {
    case kCharInfoOK:
        return confirm();
    case kCharInfoClose:
    case kCharInfoCancel:
        return end(sender->tag());
    case kRegionTag:
        return DisplayRegionListBox();
    default:
        return;
    }
}

void charInfoView::confirm()
{
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        if (!storeField(i))
            return;
    }
    CurrentProfile().CHARACTER_INFO.REGION = static_cast<std::uint32_t>(m_Region);
    end(kCharInfoOK);
}

/// False, with the keyboard in the field, when nothing is entered there.
bool charInfoView::storeField(std::size_t field)
{
    const QString text = m_fields[field]->plainText();
    if (text.isEmpty()) {
        m_fields[field]->setFocus();
        return false;
    }
    SetText(CurrentProfile().CHARACTER_INFO.*kFields[field].field, text.toStdString());
    return true;
}

void charInfoView::end(std::int32_t tag)
{
    const QPointer<charInfoView> alive(this);
    charAction.send(tag);
    if (!alive)
        return;
    // Not close(): that is a request of the player's, which the window passes on.
    window()->hide();
    window()->deleteLater();
}

void charInfoView::setRegionButton(std::uint32_t code)
{
    if (code < kRegionCount)
        ButtonRegion->setCaptionText(QLatin1String(kRegionNames[code]));
}

void charInfoView::DisplayRegionListBox()
{
    if (!m_popup.mayOpen())
        return;
    m_popup.open(*ButtonRegion,
                 {.title = "Region",
                  .tag = kRegionListTag,
                  .texts = kRegionNames,
                  .selected = m_Region,
                  .changeAction = {this, &charInfoView::ListboxAction}},
                 {this, &charInfoView::CloseListBox});
}

void charInfoView::ListboxAction(pngListBox *sender)
{
    if (sender->tag() != kRegionListTag)
        return;
    const int row = sender->getcursel();
    systemLog("IDC_LISTBOX_REGION:%d", row);
    if (row >= 0) {
        m_Region = row;
        setRegionButton(static_cast<std::uint32_t>(row));
    }
    m_popup.chosen();
}

void charInfoView::CloseListBox(PopupContent * /*sender*/)
{
    m_popup.close(*window());
}

void charInfoView::keyboardMoved()
{
    if (!isActiveWindow())
        m_pressedKey = 0; // it comes up elsewhere
    update();
}

void charInfoView::keyDown(QKeyEvent *event)
{
    if (!event->isAutoRepeat())
        m_pressedKey = event->key();
}

/// A key whose press went elsewhere, like the one that chose in the list, answers nothing here.
void charInfoView::keyUp(QKeyEvent *event)
{
    const auto stroke = m_strokes.read(*event);
    if (!stroke)
        return;
    logKeyUp(*stroke);
    if (event->key() != m_pressedKey)
        return;
    m_pressedKey = 0;
    if (stroke->keyCode == kReturnKey)
        ButtonOK->click();
    else if (stroke->keyCode == kEscapeKey)
        ButtonCancel->click();
}
