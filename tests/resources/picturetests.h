#pragma once

#include "skintable.h"

/// Every picture of the skin, on a screen of one resolution.
class PictureTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTableHasRows() { QVERIFY(pictureRows().size() > 50); }

    void everyPictureIsThere_data()
    {
        QTest::addColumn<QSize>("size");
        for (const PictureRow &row : pictureRows())
            QTest::newRow(qPrintable(row.name)) << row.size;
    }

    void everyPictureIsThere()
    {
        QFETCH(const QSize, size);
        const SkinImage picture = SkinImage::named(QTest::currentDataTag());
        QVERIFY(!picture.isNull());
        QCOMPARE(picture.size(), size);
        QCOMPARE(picture.pixmap().size(), size * qApp->devicePixelRatio());
        QVERIFY(!isBlank(picture.pixmap().toImage()));
    }

    /// Where it lies in the program, at every resolution.
    void aPictureWithoutABaseIsNotCopied()
    {
        const QImage one = SkinImage::named("mainbk").pixmap().toImage();
        const QImage other = SkinImage::named("mainbk").pixmap().toImage();
        QCOMPARE(one.constBits(), other.constBits());
    }
};
