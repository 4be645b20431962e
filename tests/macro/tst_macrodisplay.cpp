#include "displaystage.h"
#include "support/suite.h"

/// The view that records keys.
class tst_macrodisplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyIsRecordedAsPressAndRelease();
};

void tst_macrodisplay::aKeyIsRecordedAsPressAndRelease()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(keystroke::kTab);
    const std::vector<KeymapEvent> tab{{48, 1, 0}, {48, 2, 0}};
    QVERIFY(stage.events() == tab);
}

KYR_GUI_TEST(tst_macrodisplay)
#include "tst_macrodisplay.moc"
