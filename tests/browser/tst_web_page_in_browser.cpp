// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/chromium.h"
#include "output/web/web_page.h"
#include "platform/files.h"
#include "platform/text_encoding.h"
#include "support/file_bytes.h"
#include "support/test_class.h"

#include <optional>

namespace {

struct TileRow
{
    const char *type;
    QPoint corner;
    const char *caption; ///< UTF-8
};

// Captions that would be markup, script or another letter if they were not written as text.
const TileRow rows[] = {
    {"Prefix", {40, 60}, "auf"},
    {"Wortel", {300, 60}, "läuf"},
    {"Suffix", {560, 60}, "ung"},
    {"Wortel", {40, 200}, "</td><script>document.title='boese'</script>"},
    {"Prefix", {40, 260}, "<img src=x onerror=\"document.title='boese'\">"},
    {"Suffix", {40, 320}, "&amp; &#66; \" ' --> \xF0\x9F\x98\x80"},
    {"Wortel", {40, 380}, "שלום \xE2\x80\xAE rückwärts"},
    {"Prefix", {40, 440}, "*/ //--> </SCRIPT><!--"},
};

QByteArray session()
{
    QByteArray text = utf8Mark;
    int count = 0;
    for (const TileRow &row : rows)
        text += "[Morpheme" + QByteArray::number(++count) + "]\r\nType=" + row.type +
                "\r\nLeft=" + QByteArray::number(row.corner.x()) +
                "\r\nTop=" + QByteArray::number(row.corner.y()) + "\r\nCaption=\"" + row.caption + "\"\r\n";
    return text + "[NumObjects]\r\nObjCounter=" + QByteArray::number(count) + "\r\n";
}

} // namespace

/// The web page as those see it whom it is made for: in a browser.
class WebPageInBrowserTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir folder_;
    std::optional<Chromium> browser_;

    WebPage wishes() const
    {
        WebPage page;
        page.session = storedPath(folder_.filePath(u"brett.wlx"_s));
        page.file = storedPath(folder_.filePath(u"Seite ü.html"_s));
        page.title = u"Für </title><script>document.title='boese'</script>"_s;
        page.script = bytesOf(u":/web/drag.js"_s);
        return page;
    }
    void show(const WebPage &page)
    {
        MakeWebpage(page);
        browser_->open(nativePath(page.file));
    }
    QPoint placeOf(const QString &id)
    {
        const QString block = u"document.getElementById('%1')"_s.arg(id);
        return {browser_->value(block + u".offsetLeft"_s).toInt(),
                browser_->value(block + u".offsetTop"_s).toInt()};
    }
    QColor colourAt(QPoint point) { return browser_->picture().pixelColor(point); }
    void dragByMouse(QPoint from, QPoint to)
    {
        browser_->mouse(u"mousePressed"_s, from);
        browser_->mouse(u"mouseMoved"_s, (from + to) / 2);
        browser_->mouse(u"mouseMoved"_s, to);
        browser_->mouse(u"mouseReleased"_s, to);
        browser_->mouse(u"mouseMoved"_s, to + QPoint(50, 50)); // in nobody's hand any more
    }

private slots:
    void initTestCase()
    {
        putBytes(folder_.filePath(u"brett.wlx"_s), session());
        QImage picture(300, 200, QImage::Format_RGB32);
        picture.fill(Qt::green);
        QVERIFY(picture.save(folder_.filePath(u"Wiese am Fluß #1.jpg"_s)));
        browser_.emplace();
    }
    void cleanupTestCase() { browser_.reset(); }
    void init() { browser_->complaints.clear(); }
    void cleanup() { QCOMPARE(browser_->complaints, QStringList()); }

    void tilesLieAtTheirPlacesInTheirColours()
    {
        show(wishes());
        const QImage picture = browser_->picture();
        int number = 0;
        for (const TileRow &row : rows) {
            const QString id = u"Word%1"_s.arg(++number);
            QCOMPARE(placeOf(id), row.corner);
            QCOMPARE(
                browser_->value(u"document.getElementById('%1').innerText.trim()"_s.arg(id)).simplified(),
                QString::fromUtf8(row.caption).simplified());
            const char kind = row.type[0];
            QCOMPARE(picture.pixelColor(row.corner + QPoint(5, 5)),
                     QColor(kind == 'S' ? 0 : 255, kind == 'P' ? 255 : 0, kind == 'S' ? 255 : 0));
        }
        QCOMPARE(browser_->value(u"document.title"_s),
                 u"Für </title><script>document.title='boese'</script>"_s);
        QCOMPARE(browser_->value(u"document.scripts.length"_s), u"2"_s);
        QCOMPARE(browser_->value(u"document.images.length"_s), u"0"_s);
        QCOMPARE(browser_->requests.size(), 1); // the page itself, and nothing from elsewhere
    }

    void aMouseDragsATileToTheFront()
    {
        show(wishes());
        dragByMouse({50, 70}, {310, 75});
        QCOMPARE(placeOf(u"Word1"_s), QPoint(300, 65));
        QCOMPARE(colourAt({305, 70}), QColor(255, 255, 0)); // over the red one, which comes later in the page
        dragByMouse({310, 62}, {310, 160});                 // the upper edge of the red one still shows
        QCOMPARE(placeOf(u"Word2"_s), QPoint(300, 158));
        dragByMouse({310, 75}, {5, 4});
        QCOMPARE(placeOf(u"Word1"_s), QPoint(0, 0)); // not out of reach
    }

    void fingersDragTilesAtOnce()
    {
        show(wishes());
        browser_->touch(u"touchStart"_s, {{50, 70}});
        browser_->touch(u"touchStart"_s, {{50, 70}, {570, 70}});
        browser_->touch(u"touchMove"_s, {{60, 100}, {500, 120}});
        browser_->touch(u"touchMove"_s, {{100, 150}, {470, 170}});
        browser_->touch(u"touchEnd"_s, {});
        QCOMPARE(placeOf(u"Word1"_s), QPoint(90, 140));
        QCOMPARE(placeOf(u"Word3"_s), QPoint(460, 160));
        QCOMPARE(browser_->value(u"window.scrollY"_s), u"0"_s);
    }

    void keysMoveTheTileThatHasTheFocus()
    {
        show(wishes());
        browser_->key(u"Tab"_s);
        browser_->value(u"document.getElementById('Word2').focus()"_s);
        for (const QString &arrow : {u"ArrowRight"_s, u"ArrowRight"_s, u"ArrowDown"_s})
            browser_->key(arrow);
        browser_->key(u"ArrowLeft"_s, 8);
        QCOMPARE(placeOf(u"Word2"_s), QPoint(319, 70));
        QCOMPARE(placeOf(u"Word1"_s), QPoint(40, 60));
    }

    /// The picture lies beside the page, and behind the tiles even when it was moved.
    void thePictureIsFound()
    {
        WebPage page = wishes();
        page.addPicture = page.pictureMoves = true;
        page.picture = storedPath(folder_.filePath(u"Wiese am Fluß #1.jpg"_s));
        page.pictureLeft = 20;
        page.pictureTop = 30;
        for (const bool shortName : {true, false}) {
            page.shortName = shortName;
            show(page);
            QCOMPARE(browser_->value(u"document.images[0].naturalWidth"_s), u"300"_s);
            QCOMPARE(placeOf(u"BGPIC"_s), QPoint(20, 30));
            QVERIFY(colourAt({250, 150}).green() > 240 && colourAt({250, 150}).red() < 20);
            dragByMouse({200, 150}, {400, 150});
            QCOMPARE(placeOf(u"BGPIC"_s), QPoint(220, 30));
            QCOMPARE(colourAt({304, 64}), QColor(255, 0, 0));
        }
    }

    void bigBrightTilesThatStay()
    {
        WebPage page = wishes();
        page.letterSteps = 5;
        page.tilesMove = false;
        page.ownColours = true;
        page.back = 0x102030;
        page.tileBack = 0x00FF00;
        show(page);
        QCOMPARE(colourAt({700, 500}), QColor(0x30, 0x20, 0x10));
        QVERIFY(browser_->value(u"document.getElementById('Word1').offsetHeight"_s).toInt() > 45);
        dragByMouse({50, 70}, {310, 75});
        QCOMPARE(colourAt({43, 63}), QColor(0, 255, 0));
    }
};

WORTEL_TEST(WebPageInBrowserTest)
#include "tst_web_page_in_browser.moc"
