#include "macro/MacroView.h"

#include "controls/faces.h"
#include "controls/fieldframe.h"
#include "controls/skinscrollarea.h"
#include "macro/limitedLengthFormatter.h"
#include "platform/keywindow.h"

#include <QtWidgets/QApplication>

using namespace macrolayout;

namespace {

constexpr int kLabelSize = 11;
constexpr std::uint32_t kMostLoopDigits = 3;

/// A line of events may reach up to here from the right edge.
constexpr int kEventsBarWidth = 5;

/// Where there is no place, the control is hidden: by itself one without a size would still be
/// reached by the tab key.
void put(const PlacedWidget &control, UpRect place)
{
    control.placed->setFrame(place);
    if (place.width > 0)
        control.widget->show();
    else
        hideQuietly(*control.widget);
}

} // namespace

MacroView::MacroView(QWidget *parent) : ModalDialog(parent)
{
    const UpRect frame{0, 0, kWidth, kHeight};
    setFrame(frame);
    window()->setWindowTitle(QLatin1String(kTitle.text));
    setAccessibleName(window()->windowTitle());
    buildFields();
    buildButtons();
    m_MacroInfo.MODE = kModeText;
    setDefaultKeys();
    pStartDisplayView->setKeymapInfo(m_MacroInfo.STARTKEY);
    pSendDisplayView->setKeymapInfo(m_MacroInfo.SENDKEY);
    initSetting();
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); });
}

template <class Control>
Control *MacroView::addField(Field field, Control *control)
{
    const FieldRow &row = rowOf(field);
    control->setObjectName(QLatin1String(row.name));
    control->setAccessibleName(QLatin1String(row.description));
    m_fields[static_cast<std::size_t>(field)] = PlacedWidget(control);
    return control;
}

void MacroView::buildFields()
{
    pTextfieldMacroName = addField(Field::Name, new TextField(this));
    MacroscrollView = addField(Field::Events, new SkinScrollArea(this, kEventsBarWidth));
    pStartDisplayView = addField(Field::StartKey, new MacroDisplay(this));
    pCopyTextfield = addField(Field::Text, new TextArea(this));
    pSendDisplayView = addField(Field::SendKey, new MacroDisplay(this));
    pLoopTextfield = addField(Field::Loop, new TextField(this));

    buildEventList();
    pStartDisplayView->setMaxKeymapEvent(kMostKeyEvents);
    pSendDisplayView->setMaxKeymapEvent(kMostKeyEvents);

    auto *const formatter = new limitedLengthFormatter(pLoopTextfield);
    formatter->setMaxTextLength(kMostLoopDigits);
    pLoopTextfield->setValidator(formatter);
}

void MacroView::buildEventList()
{
    const UpRect area = rowOf(Field::Events).places.events;
    pMacroDisplayView = new MacroDisplay(this, {0, 0, area.width, area.height});
    pMacroDisplayView->setObjectName(QStringLiteral("pMacroDisplayView"));
    pMacroDisplayView->setAccessibleName(MacroscrollView->accessibleName());
    pMacroDisplayView->setMaxKeymapEvent(kMostMacroEvents);
    pMacroDisplayView->enableScroll(true);
    MacroscrollView->setWidget(pMacroDisplayView);
}

void MacroView::buildButtons()
{
    const Faces faces{SkinImage::named("Macro_N"), SkinImage::named("Macro_O"),
                      SkinImage::named("Macro_D")};
    BKImage = faces.normal;
    const Action<HoverButton *> action{this, &MacroView::buttonAction};
    for (std::size_t i = 0; i < kChoiceCount; ++i) {
        const ChoiceRow &row = kChoices[i];
        const ButtonRow button{
            .name = row.name, .frame = {}, .tag = row.tag, .description = row.label.text};
        m_choices[i] = makeCheckBox(this, button, row.pictures.off, row.pictures.on);
        m_choices[i]->setAction(action);
    }
    for (const ButtonRow &row : kButtons) {
        HoverButton *const button = makeButton(this, row, faces);
        button->setAction(action);
        if (row.tag == kTagClose)
            setKeyControls(button, pTextfieldMacroName);
    }
    // The tab key goes on from a box to the field that belongs to it.
    setTabOrder(&choice(Choice::ButtonStartKey), pCopyTextfield);
    setTabOrder(&choice(Choice::ButtonLoop), pLoopTextfield);
}

void MacroView::layOut(Layout layout)
{
    m_layout = layout;
    for (std::size_t i = 0; i < kFieldCount; ++i)
        put(m_fields[i], kFields[i].places.in(layout));
    for (std::size_t i = 0; i < kChoiceCount; ++i)
        put(PlacedWidget(m_choices[i]), kChoices[i].box.in(layout));
}

void MacroView::drawRect(Canvas &canvas)
{
    canvas.clear();
    canvas.drawImage(BKImage);
    drawLabel(canvas, kTitle, TextAlign::Centre);
    drawLabel(canvas, kName, TextAlign::Left);
    for (const ChoiceRow &row : kChoices)
        drawLabel(canvas, row.label, TextAlign::Left);
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const UpRect place = kFields[i].places.in(m_layout);
        if (place.width > 0)
            drawFieldFrame(canvas, place, *m_fields[i].widget);
    }
}

void MacroView::drawLabel(Canvas &canvas, const LabelRow &label, TextAlign align) const
{
    const UpRect place = label.places.in(m_layout);
    if (place.width > 0)
        canvas.drawLine(QLatin1String(label.text), place, kGold, align, kLabelSize);
}

void MacroView::mouseDown(const ViewMouseEvent &event)
{
    if (m_MacroInfo.bLOOP == 1)
        takeLoopCount();
    takeKeyboard();
    ModalDialog::mouseDown(event);
}

/// Ends the editing of any field.
void MacroView::takeKeyboard()
{
    setFocus(Qt::OtherFocusReason);
}

void MacroView::returnPressed(QWidget * /*focused*/)
{
    takeKeyboard();
}

void MacroView::answered(int tag)
{
    tag == kTagOK ? m_okAction.send(this) : m_cancelAction.send(this);
}
