#include "app/interface.h"

#include "mainview/MainView.h"

Interface::Interface(const Environment &environment)
    : m_mainWindow(
          std::make_unique<custumwindow>(UpRect{0, 0, kMainViewWidth, kMainViewHeight}, nullptr)),
      m_mainView(new MainView(environment, m_mainWindow.get()))
{
    m_mainWindow->setObjectName(QStringLiteral("MainWindow"));
    m_mainWindow->setWindowTitle(QStringLiteral("Kyr Torvane MMO Gaming Mouse"));
    m_mainWindow->setFixedSize(kMainViewWidth, kMainViewHeight);
    m_mainWindow->setBCanDragWindow(true);
    m_mainWindow->setCloseRequest({m_mainView, &MainView::commitAndQuit});
    m_mainWindow->setContentView(m_mainView);
    m_mainWindow->center();
    // Shown before its content wakes up: the desktop maps the window while settings and skin load,
    // and the first picture that the player sees is the whole one.
    m_mainView->hide();
    m_mainWindow->show();
    m_mainView->awakeFromNib();
    m_mainView->show();
}
