#include "dialogs/AboutView.h"
#include "dialogs/dialogwindow.h"
#include "dialogs/PopupProgressBar.h"
#include "dialogs/WarnOneView.h"
#include "dialogs/WarnTwoView.h"
#include "mainview/MainView.h"
#include "panels/charInfoView.h"
#include "platform/keywindow.h"

/// A dialog in a window of its own, over the middle of the main window.
template <class Dialog>
Dialog *MainView::makeDialog()
{
    auto *const dialog = makeDialogAt<Dialog>(*window());
    static_cast<custumwindow *>(dialog->window())->centerOver(*window());
    return dialog;
}

void MainView::DisplayWarnOneWindow(const QString &caption, const QString &strDiaplayText)
{
    auto *const warning = makeDialog<WarnOneView>();
    warning->setDisplayString(caption, strDiaplayText);
    warning->runModal();
}

void MainView::DisplayWarnTwoWindow(const QString &caption, const QString &strDiaplayText)
{
    auto *const question = makeDialog<WarnTwoView>();
    question->setDisplayString(caption, strDiaplayText);
    question->setYESAction({this, &MainView::ProfileChangeYESAction});
    question->setNOAction({this, &MainView::ProfileChangeNOAction});
    question->runModal();
}

void MainView::OpenAbout()
{
    auto *const about = makeDialog<AboutView>();
    about->setFWNumber(m_FWNumber);
    about->runModal();
}

void MainView::DisplayCharInfo()
{
    if (!bDisplayCharinfoWindow) {
        auto *const dialog = makeDialogAt<charInfoView>(*window());
        dialog->setcharAction({this, &MainView::CharInfoAction});
        pCharInfoWindow = static_cast<custumwindow *>(dialog->window());
        pCharInfoWindow->setObjectName(QStringLiteral("pCharInfoWindow"));
        pCharInfoWindow->setCloseRequest({dialog, &charInfoView::closeRequested});
        pCharInfoWindow->center();
        bDisplayCharinfoWindow = true;
    }
    makeKeyAndOrderFront(*pCharInfoWindow);
}

void MainView::DisplayWriteDeviceBar()
{
    if (!pPopUpBarWindow) {
        pPopUpBarWindow =
            new custumwindow({0, 0, PopupProgressBar::kWidth, PopupProgressBar::kHeight}, window());
        pPopUpBarWindow->setFixedSize(pPopUpBarWindow->size());
        pPopUpBarWindow->setObjectName(QStringLiteral("pPopUpBarWindow"));
        pPopUpBarWindow->setWindowTitle(QStringLiteral("Applying profile to on-board memory..."));
        pPopUpBarView = new PopupProgressBar(pPopUpBarWindow);
        pPopUpBarWindow->setContentView(pPopUpBarView);
        pPopUpBarWindow->setCloseRequest({this, &MainView::closeWriteDeviceBar});
    }
    orderFront(*pPopUpBarWindow);
    if (bDisplayWriteDeviceWindow)
        return;
    pPopUpBarWindow->center();
    pPopUpBarView->SetProgressPos(0); // not where the last write ended
    bDisplayWriteDeviceWindow = true;
}

void MainView::closeWriteDeviceBar()
{
    pPopUpBarWindow->hide();
    bDisplayWriteDeviceWindow = false;
}
