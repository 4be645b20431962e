#pragma once

#include "controls/popupcontent.h"
#include "model/settings.h"
#include "platform/focusframe.h"

#include <QtCore/QStringList>

/// Tags of the lists whose rows stand for functions.
inline constexpr int kCpiListTag = 4096;
inline constexpr int kProfileListTag = 4097;
inline constexpr int kMacroListTag = 4098;

/// A plain list of text rows with its own colours, one selected row, a double click, and rows that
/// can be dragged onto buttons. The arrow and page keys, Home and End move the selection, in a
/// scroll area into view; Return sends what a click sends, F2 what a double click sends.
class pngListBox : public PopupContent
{
public:
    explicit pngListBox(QWidget *parent, UpRect frame = {});

    /// Appends a row; the new count.
    int AddString(const QString &text);
    /// Empties the list; the picture follows at the next redraw.
    void clearAll() { pListArray.clear(); }
    int getCount() const { return static_cast<int>(pListArray.size()); }
    /// The text of a row; empty for a row outside the list.
    QString stringAt(int row) const { return pListArray.value(row); }

    /// Selects a row (-1 = none) without telling anybody.
    void setcursel(int row);
    int getcursel() const { return _currentpos; }

    /// Colours of the texts and of the selected row, 0..255 a component; beyond that the nearest.
    void setTextColor(double red, double Green, double Blue);
    void setForeColor(double red, double Green, double Blue);
    /// Alignment of the texts in their rows.
    void setTextAlign(TextAlign align);
    /// Height of a row in points; less than 1 is taken as 1.
    void setItemHeight(int height);
    int itemHeight() const { return m_ItemHeight; }
    /// Whether rows can be dragged out; only rows that stand for functions can.
    void enableDragDrop(bool enable) { bEnableDragDrop = enable; }

    /// What the texts leave free at the right edge, in points; 0 at first.
    void setRightMargin(int margin);

    /// Sent with the list on every release of the mouse that does not end a drag, whether or not
    /// the selection changed, and by the Return key.
    void setChangeAction(const Action<pngListBox *> &action) { changeAction = action; }
    /// Sent with the list on a double click.
    void setDBClickAction(const Action<pngListBox *> &action);

    /// The function that a row of the CPI, profile or macro list stands for. Lists with other tags
    /// have none and must not be asked: they answer 0.
    FunctionCode getfunctionid(int row) const;

protected:
    void drawContent(Canvas &canvas) override;
    void mouseDown(const ViewMouseEvent &event) override;
    void mouseUp(const ViewMouseEvent &event) override;
    void mouseDragged(const ViewMouseEvent &event) override;
    void keyDown(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;

private:
    UpRect strip(int row) const;
    UpRect textPlace(int row) const;
    void drawMark(Canvas &canvas, int row) const;
    int rowAt(int fromTop) const;
    bool hasFunctions() const { return _tag >= kCpiListTag && _tag <= kMacroListTag; }
    int rowsInSight() const;
    void moveSelection(int by);

    QStringList pListArray;
    Action<pngListBox *> changeAction;
    Action<pngListBox *> dbClickAction;
    int _currentpos = -1;
    TextAlign _textAlign = TextAlign::Centre;
    double _textColorR = 255;
    double _textColorG = 255;
    double _textColorB = 255;
    double _foreColorR = 41;
    double _foreColorG = 41;
    double _foreColorB = 41;
    bool bEnableDragDrop = false;
    bool bEnableDBClick = false;
    int m_ItemHeight = 20;
    int m_rightMargin = 0;
    FocusFrame m_focusFrame;
    bool m_isDragged = false; ///< a row was dragged since the last press
    QPoint m_pressedAt;       ///< where the left button went down, for the drag threshold
};
