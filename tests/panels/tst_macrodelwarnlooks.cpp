#include "dialogs/textfit.h"
#include "macrowarnstage.h"
#include "support/pictures.h"
#include "support/skinpictures.h"
#include "support/suite.h"

/// What the warning before a macro is deleted is made of and shows.
class tst_macrodelwarnlooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWarningStandsAtTheMainWindow();
    void thePartsHaveTheirPlaces();
    void theTextsAreDrawnOnItsPicture();
    void theButtonsAreDrawnFromItsPictures();
    void theBoxIsDrawnFromPicturesOfItsOwn();
};

namespace {

QImage shownView(const OpenDialog &warning)
{
    return shown(*warning.button("ButtonOK").parentWidget());
}

/// A part of a picture, by its upward frame in the warning.
QImage cutOf(const char *picture, UpRect frame)
{
    return skin(picture)
        .toImage()
        .copy(UpHost(176).down(frame))
        .convertToFormat(QImage::Format_ARGB32);
}

} // namespace

void tst_macrodelwarnlooks::theWarningStandsAtTheMainWindow()
{
    const MacroWarnStage stage;
    stage.program.window().move(70, 25);
    stage.warned([&](const OpenDialog &warning) {
        QVERIFY(standsAtMainWindow(warning, stage.program.window(), {387, 176}));
        QCOMPARE(warning.caption(), QStringLiteral("Warning"));
        QCOMPARE(warning.text(), QStringLiteral("Are you sure you want to delete this macro?\n"
                                                "Don't show it again."));
        const QPoint way(-20, 50);
        QCOMPARE(draggedBy(warning, {200, 60}, way), way);
    });
}

void tst_macrodelwarnlooks::thePartsHaveTheirPlaces()
{
    struct Part
    {
        const char *name;
        const char *place;
        int tag;
        const char *caption;
        const char *description;
    };
    constexpr Part parts[] = {
        {"ButtonClose", "354,145,27,27", 4096, "", "Close"},
        {"ButtonOK", "114,6,81,38", 4097, "OK", "OK"},
        {"ButtonCancel", "194,6,81,38", 4098, "Cancel", "Cancel"},
        {"CheckButtonDel", "17,66,18,18", 4099, "", "Don't show it again."},
    };
    const MacroWarnStage stage;
    stage.warned([&](const OpenDialog &warning) {
        for (const Part &part : parts) {
            const auto &button = static_cast<HoverButton &>(warning.button(part.name));
            QCOMPARE(placeText(button), QLatin1String(part.place));
            QCOMPARE(button.tag(), part.tag);
            QCOMPARE(button.captionText(), QLatin1String(part.caption));
            QCOMPARE(button.accessibleName(), QLatin1String(part.description));
            QVERIFY(button.isVisible() && button.isEnabled() && !button.isChecked());
        }
        QVERIFY(warning.button("ButtonOK").hasFocus());
    });
}

void tst_macrodelwarnlooks::theTextsAreDrawnOnItsPicture()
{
    struct Text
    {
        const char *text = "";
        UpRect place;
    };
    constexpr Text texts[] = {
        {"Are you sure you want to delete this macro?", {10, 100, 350, 15}},
        {"Don't show it again.", {40, 66, 250, 15}},
    };
    const MacroWarnStage stage;
    stage.warned([&](const OpenDialog &warning) {
        const QImage picture = shownView(warning);
        const QRect title = UpHost(176).down(UpRect{17, 148, 80, 15});
        QCOMPARE(picture.copy(title),
                 withLine(skin("warn_n"), QStringLiteral("Warning"), title, 12));
        for (const auto &[text, place] : texts) {
            const QRect box = UpHost(176).down(fitText(QLatin1String(text), place, 12).rect);
            const QImage expected = withText(skin("warn_n"), QLatin1String(text), box, 12);
            QVERIFY(expected != cutOf("warn_n", place));
            QCOMPARE(picture.copy(box), expected);
        }
    });
}

void tst_macrodelwarnlooks::theButtonsAreDrawnFromItsPictures()
{
    struct Face
    {
        const char *button = "";
        UpRect edge; ///< of the button, above what is written on it
    };
    constexpr Face faces[] = {
        {"ButtonClose", {354, 165, 27, 7}},
        {"ButtonOK", {114, 37, 81, 7}},
        {"ButtonCancel", {194, 37, 81, 7}},
    };
    const MacroWarnStage stage;
    stage.warned([&](const OpenDialog &warning) {
        for (const Face &face : faces) {
            const UpRect edge = face.edge;
            auto &button = warning.button(face.button);
            const auto picture = [&] { return shown(button).copy(0, 0, edge.width, edge.height); };
            const QImage normal = cutOf("warn_n", edge);
            QVERIFY(cutOf("warn_o", edge) != normal);
            QVERIFY(cutOf("warn_d", edge) != cutOf("warn_o", edge));
            QCOMPARE(picture(), normal);
            pointer::move(button, button.rect().center());
            QCOMPARE(picture(), cutOf("warn_o", edge));
            pointer::press(button, button.rect().center());
            QCOMPARE(picture(), cutOf("warn_d", edge));
            pointer::release(button, {-20, -30});
            QVERIFY(warning.window().isVisible());
        }
    });
}

void tst_macrodelwarnlooks::theBoxIsDrawnFromPicturesOfItsOwn()
{
    const MacroWarnStage stage;
    stage.warned([](const OpenDialog &warning) {
        auto &box = warning.button("CheckButtonDel");
        const auto picture = [&] { return shownView(warning).copy(box.geometry()); };
        const QImage off = picture();
        warning.click("CheckButtonDel");
        QVERIFY(picture() != off);
        warning.click("CheckButtonDel");
        QCOMPARE(picture(), off);
    });
}

KYR_GUI_TEST(tst_macrodelwarnlooks)
#include "tst_macrodelwarnlooks.moc"
