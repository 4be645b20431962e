#include "facetests.h"
#include "support/suite.h"

/// At two pixels a point.
class tst_scaledskinfaces : public FaceTests
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "2"); }
};

KYR_GUI_TEST(tst_scaledskinfaces)
#include "tst_scaledskinfaces.moc"
