#include "support/suite.h"
#include "webdelegate.h"

/// Whole contents, several requests, and what is no request.
class tst_urlfetching : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFetchGivesTheContent();
    void aFetchGivesNothingForARefusal();
    void aFetchGivesNothingForAFailure();
    void twoRequestsRunAtATime();
    void theNextRequestMayStartAtTheEndOfOne();
    void whatIsNoAddressOfTheWebIsToldAtOnce_data();
    void whatIsNoAddressOfTheWebIsToldAtOnce();
};

void tst_urlfetching::aFetchGivesTheContent()
{
    LoaderStage stage;
    stage.server.answer("/", webAnswer("redirect", "302 Found", "Location: /there\r\n"));
    stage.server.answer("/there", webAnswer("body"));
    std::vector<UrlLoader::Content> contents;
    stage.loader->fetch(stage.server.url("/"),
                        [&](const UrlLoader::Content &content) { contents.push_back(content); });
    QTRY_COMPARE(contents.size(), std::size_t{1});
    QCOMPARE(contents.front().value_or("none"), std::string("body"));
}

void tst_urlfetching::aFetchGivesNothingForARefusal()
{
    LoaderStage stage;
    std::vector<bool> hasContent;
    const std::pair<const char *, const char *> answers[] = {
        {"/399", "399 Well"}, {"/400", "400 No"}, {"/404", "404 No"}, {"/500", "500 No"}};
    for (const auto &[path, status] : answers) {
        stage.server.answer(path, webAnswer("body", status));
        stage.loader->fetch(stage.server.url(path), [&](const UrlLoader::Content &content) {
            hasContent.push_back(content.has_value());
        });
        const std::size_t expected = hasContent.size() + 1;
        QTRY_COMPARE(hasContent.size(), expected);
    }
    QCOMPARE(hasContent, (std::vector{true, false, false, false}));
}

void tst_urlfetching::aFetchGivesNothingForAFailure()
{
    LoaderStage stage;
    int done = 0;
    bool hasContent = false;
    const auto count = [&](const UrlLoader::Content &content) {
        ++done;
        hasContent |= content.has_value();
    };
    stage.loader->fetch("no address", count);
    QCOMPARE(done, 1);
    stage.server.answerAll(webHead("200 OK", "Content-Length: 10\r\n") + "short");
    stage.loader->fetch(stage.server.url("/"), count);
    QTRY_COMPARE(done, 2);
    QVERIFY(!hasContent);
}

void tst_urlfetching::twoRequestsRunAtATime()
{
    LoaderStage stage;
    stage.start("/first");
    WebDelegate second;
    QVERIFY(stage.loader->start(stage.server.url("/second"), second));
    QTRY_COMPARE(stage.server.count(), std::size_t{2});
    WebVisit *first = &stage.server.visit(0);
    WebVisit *other = &stage.server.visit(1);
    if (first->path() != "/first")
        std::swap(first, other);
    other->finish(webAnswer("second"));
    QVERIFY(second.waitForEnd());
    QCOMPARE(second.body, std::string("second"));
    QCOMPARE(stage.delegate.ends, 0);
    first->finish(webAnswer("first"));
    QVERIFY(stage.delegate.waitForEnd());
    QVERIFY(stage.delegate.hasFinished());
    QCOMPARE(stage.delegate.body, std::string("first"));
}

void tst_urlfetching::theNextRequestMayStartAtTheEndOfOne()
{
    LoaderStage stage;
    stage.server.answerAll(webAnswer("body"));
    WebDelegate second;
    stage.delegate.atEnd = [&] {
        QVERIFY(stage.loader->start(stage.server.url("/second"), second));
    };
    QVERIFY(stage.load("/first"));
    QVERIFY(second.waitForEnd());
    QVERIFY(second.hasFinished());
    QCOMPARE(second.body, std::string("body"));
}

void tst_urlfetching::whatIsNoAddressOfTheWebIsToldAtOnce_data()
{
    QTest::addColumn<std::string>("url");
    for (const char *url :
         {"", "nonsense", "/a/path", "http:", "http:///path", "http://", "file:///etc/passwd",
          "ftp://127.0.0.1/x", "data:,text", "http://a b/x", "http://[x/y"})
        QTest::newRow(url) << std::string(url);
}

void tst_urlfetching::whatIsNoAddressOfTheWebIsToldAtOnce()
{
    QFETCH(std::string, url);
    LoaderStage stage;
    QVERIFY(!stage.loader->start(url, stage.delegate));
    QCoreApplication::processEvents();
    QCOMPARE(stage.delegate.ends, 0);
    QVERIFY(stage.delegate.statuses.empty());
}

KYR_CORE_TEST(tst_urlfetching)
#include "tst_urlfetching.moc"
