#include "app/interface.h"

#include "app/firstpainting.h"
#include "app/windowcontroll.h"
#include "mainview/MainView.h"
#include "panels/BottomView.h"
#include "panels/LeftView.h"
#include "panels/RightView.h"

namespace {

/// The bars' extents along the main window, which they keep.
constexpr int kLeftBarHeight = 452;
constexpr int kRightBarHeight = 461;
constexpr int kBottomBarWidth = 466;

custumwindow *makeBar(UpRect frame, const char *name, const char *title, custumwindow &main)
{
    auto *const bar = new custumwindow(frame, &main);
    bar->setObjectName(QLatin1String(name));
    bar->setWindowTitle(QLatin1String(title));
    return bar;
}

/// A closed bar at the left or right side.
custumwindow *makeSideBar(int height, const char *name, const char *title, custumwindow &main)
{
    custumwindow *const bar = makeBar({0, 0, kBarHandle, height}, name, title, main);
    bar->setFixedHeight(height);
    return bar;
}

custumwindow *makeBottomBar(int width, const char *name, const char *title, custumwindow &main)
{
    custumwindow *const bar = makeBar({0, 0, width, kBarHandle}, name, title, main);
    bar->setFixedWidth(width);
    return bar;
}

template <class Content>
Content *fillBar(custumwindow &bar, windowcontroll &controll)
{
    auto *const content = new Content(&bar);
    content->setWindowControll(&controll);
    bar.setContentView(content);
    bar.setCloseRequest({content, &BarView::closeRequested});
    content->awakeFromNib();
    return content;
}

} // namespace

Interface::Interface(const Environment &environment)
    : m_mainWindow(
          std::make_unique<custumwindow>(UpRect{0, 0, kMainViewWidth, kMainViewHeight}, nullptr)),
      m_mainView(new MainView(environment, m_mainWindow.get())),
      m_leftBar(makeSideBar(kLeftBarHeight, "LeftBar", "Mouse Properties", *m_mainWindow)),
      m_rightBar(makeSideBar(kRightBarHeight, "RightBar", "Button Functions", *m_mainWindow)),
      m_bottomBar(
          makeBottomBar(kBottomBarWidth, "BottomBar", "Illumination Settings", *m_mainWindow)),
      m_controll(
          std::make_unique<windowcontroll>(*m_mainWindow, *m_leftBar, *m_rightBar, *m_bottomBar))
{
    m_controll->setMainContent(m_mainView);
    m_mainView->setWindowControll(m_controll.get());
    showMainWindow();
    afterFirstPainting(*m_mainWindow, [this] { showBars(); });
}

Interface::~Interface() = default;

void Interface::showMainWindow()
{
    m_mainWindow->setObjectName(QStringLiteral("MainWindow"));
    m_mainWindow->setWindowTitle(QStringLiteral("Kyr Torvane MMO Gaming Mouse"));
    m_mainWindow->setFixedSize(kMainViewWidth, kMainViewHeight);
    m_mainWindow->setCloseRequest({m_mainView, &MainView::commitAndQuit});
    m_mainWindow->setContentView(m_mainView);
    m_mainWindow->center();
    // Shown before its content wakes up: the desktop maps the window while settings and skin load,
    // and the first picture that the player sees is the whole one.
    m_mainView->hide();
    m_mainWindow->show();
    m_mainView->awakeFromNib();
    m_mainWindow->takeShape();
    m_mainView->show();
}

void Interface::showBars()
{
    m_controll->setLeftContent(fillBar<LeftView>(*m_leftBar, *m_controll));
    m_controll->setRightContent(fillBar<RightView>(*m_rightBar, *m_controll));
    m_controll->setBottomContent(fillBar<BottomView>(*m_bottomBar, *m_controll));
    m_controll->awakeFromNib();
}
