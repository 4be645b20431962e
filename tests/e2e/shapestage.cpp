// A window cut out along a slope, in front of another one of a single colour. A click makes it
// narrower, and wide again; its picture stays at the right edge.

#include "controls/custumwindow.h"
#include "controls/shapedcontent.h"

#include <QtWidgets/QApplication>

namespace {

constexpr int kWidth = 120;
constexpr int kNarrowWidth = 70;
constexpr int kHeight = 60;

/// In each row as many pixels are see-through as there are rows above; the next one is not quite
/// half opaque, the one after it just half.
SkinImage slope()
{
    const qreal scale = qApp->devicePixelRatio();
    QImage picture((QSizeF(kWidth, kHeight) * scale).toSize(), QImage::Format_ARGB32);
    picture.fill(QColor(0, 200, 0));
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < y; ++x)
            picture.setPixelColor(x, y, Qt::transparent);
        picture.setPixelColor(y, y, QColor(0, 200, 0, 127));
        picture.setPixelColor(y + 1, y, QColor(0, 200, 0, 128));
    }
    picture.setDevicePixelRatio(scale);
    return SkinImage::of(QPixmap::fromImage(picture));
}

class Slope : public View, public ShapedContent
{
public:
    using View::View;

    const SkinImage &background() const override { return m_picture; }
    UpPoint backgroundOrigin() const override { return {width() - kWidth, 0}; }

protected:
    void drawRect(Canvas &canvas) override
    {
        canvas.clear();
        canvas.drawImage(m_picture, backgroundOrigin());
    }
    void mouseDown(const ViewMouseEvent & /*event*/) override
    {
        auto &window = static_cast<custumwindow &>(*parentWidget());
        const UpRect now = window.frame();
        const int width = now.width == kWidth ? kNarrowWidth : kWidth;
        window.setFrame({now.x, now.y, width, now.height});
    }

private:
    SkinImage m_picture = slope();
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QWidget backdrop(nullptr, Qt::FramelessWindowHint);
    backdrop.setWindowTitle(QStringLiteral("Backdrop"));
    backdrop.setPalette(QColor(255, 0, 255));
    backdrop.resize(1270, 1010);
    backdrop.move(0, 0);
    backdrop.show();
    custumwindow window({20, 20, kWidth, kHeight}, &backdrop);
    window.setWindowTitle(QStringLiteral("Slope"));
    window.setContentView(new Slope(&window));
    window.show();
    return QApplication::exec();
}
