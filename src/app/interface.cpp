#include "app/interface.h"

#include "mainview/mainview.h"

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
    m_mainView->awakeFromNib();
}
