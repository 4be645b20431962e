#include "picturetests.h"
#include "support/suite.h"

/// At one pixel a point.
class tst_pictures : public PictureTests
{
    Q_OBJECT
};

KYR_GUI_TEST(tst_pictures)
#include "tst_pictures.moc"
