#include "picturetests.h"
#include "support/suite.h"

/// At two pixels a point.
class tst_scaledpictures : public PictureTests
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "2"); }
};

KYR_GUI_TEST(tst_scaledpictures)
#include "tst_scaledpictures.moc"
