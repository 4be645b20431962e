#include "panels/levelchoice.h"

#include "model/settings.h"
#include "platform/systemlog.h"

LevelChoice::LevelChoice(const Look &look, View &parent, const Faces &faces)
    : m_look(&look), m_button(makeButton(&parent, look.button, faces))
{
}

void LevelChoice::show(std::uint32_t code) const
{
    if (code < m_look->texts.size())
        m_button->setCaptionText(QLatin1String(m_look->texts[code]));
}

void LevelChoice::open(PopupList &popup, const Action<pngListBox *> &changeAction,
                       const Action<PopupContent *> &closeAction) const
{
    if (!popup.mayOpen())
        return;
    popup.open(*m_button,
               {.title = m_look->button.description,
                .tag = m_look->listTag,
                .texts = m_look->texts,
                .selected = static_cast<int>(CurrentProfile().*m_look->field),
                .changeAction = changeAction},
               closeAction);
}

void LevelChoice::take(const pngListBox &list) const
{
    const int row = list.getcursel();
    systemLog(m_look->logLine, row);
    if (row < 0)
        return;
    const auto code = static_cast<std::uint32_t>(row);
    CurrentProfile().*m_look->field = code;
    show(code);
}
