#include "facetests.h"
#include "support/suite.h"

/// At one pixel a point.
class tst_skinfaces : public FaceTests
{
    Q_OBJECT
};

KYR_GUI_TEST(tst_skinfaces)
#include "tst_skinfaces.moc"
