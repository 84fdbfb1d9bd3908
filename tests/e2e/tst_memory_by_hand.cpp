// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "games/paarlon/memory_card.h"
#include "games/paarlon/memory_controls.h"
#include "support/registry.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// One kind of game, and how its cards are turned.
struct Game
{
    const char16_t *title;
    const char16_t *menuKeys; ///< in the menu's last branch
    QRgb back;
    const char16_t *label;
    const char16_t *plural;
    const char16_t *name; ///< the winner's
    bool byKeys;
};

constexpr Game stems{u"Wortel-Memory", u"Down Return", colour::red, u"Wortel", u"Wortele", u"Mia", false};
constexpr Game suffixes{
    u"Suffix-Memory", u"Down Down Return", colour::blue, u"Suffixe", u"Suffixe", u"Anne", true};

} // namespace

/// The memory cards by a player who sees nothing but the screen and forgets nothing.
class MemoryByHandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        desktop_ = std::make_unique<Desktop>(QSize(1024, 640));
        QVERIFY(desktop_->isReady());
        quiet(*desktop_);
        desktop_->setSetting(u"MemoryVisibleTime"_s, u"1.2"_s, u"MemoryGame"_s);
        desktop_->start({desktop_->writeFile(u"brett.wlx"_s, knownBoard())});
        QVERIFY(!desktop_->waitForWindow(mainWindow).isEmpty());
        Desktop::pause(1200);
    }

    void theCardsAreDealt()
    {
        const QRect board = desktop_->boardArea();
        desktop_->chooseFromMenu(board.center() + QPoint(board.width() / 4, 0),
                                 u"Down Down Down Down Down Down Down Down Down Right Down Right "_s +
                                     QString::fromUtf16(game_.menuKeys));
        const QString window = desktop_->waitForWindow(title());
        QVERIFY(!window.isEmpty());
        Desktop::pause(700);
        keep(u"intro"_s);
        const QRect area = desktop_->geometry(window);
        QWidget same;
        const MemoryControls controls = makeMemoryControls(&same);
        layOutMemoryControls(controls, area.size());
        for (int i = 0; i < 36; ++i) {
            cards_[i] = controls.picMorphemeCard[std::size_t(i)]->geometry().translated(area.topLeft());
            unknown_ << i;
        }
        const QPoint panel = area.bottomRight() - QPoint(20, 20);
        QVERIFY2(
            desktop_->waitForPicture([&](const QImage &seen) { return seen.pixel(panel) != game_.back; }),
            "no cards were dealt");
        keep(u"dealt"_s);
    }

    void sixPairs() { find(6); }
    void twelvePairs() { find(12); }
    void allPairs() { find(18); }

    /// The list has the score that the player has counted.
    void theListHasTheScore()
    {
        const QString label = QString::fromUtf16(game_.label);
        const QString name = QString::fromUtf16(game_.name);
        QVERIFY(
            !desktop_
                 ->waitForWindow(u"^Bestenliste Paarlon \\(%1\\)$"_s.arg(QString::fromUtf16(game_.plural)))
                 .isEmpty());
        keep(u"name"_s);
        desktop_->enter(name);
        const QString list = u"^Bestenliste - Paarlon \\(%1\\)$"_s.arg(label);
        QVERIFY(!desktop_->waitForWindow(list).isEmpty());
        Desktop::pause(300);
        keep(u"list"_s);
        desktop_->key(u"Return"_s);
        QVERIFY(desktop_->waitForNoWindow(list));
        const QString record = u"%20"_s + QString::number(clicks_) + u',' + name + u"~990,Wortel~"_s;
        const QString stored = desktop_->storedSettings();
        QVERIFY2(stored.contains(label + u"Top 10:="_s + record), qPrintable(record + stored));
        Desktop::pause(300);
        desktop_->key(u"Escape"_s);
        QVERIFY(desktop_->waitForNoWindow(title()));
    }

    void cleanupTestCase()
    {
        QVERIFY(desktop_->close());
        desktop_.reset();
    }

protected:
    explicit MemoryByHandTest(const Game &game)
        : game_(game)
    {}

private:
    QString title() const { return u"^%1$"_s.arg(QString::fromUtf16(game_.title)); }
    void keep(const QString &name)
    {
        desktop_->keepPicture(u"memory-%1-%2"_s.arg(QString::fromUtf16(game_.label), name));
    }

    /// Where a card's text stands; the same on each card, and nothing else is painted there.
    QImage textOn(const QImage &screen, int card) const
    {
        const QSize size = cards_[card].size();
        return screen.copy(QRect(cards_[card].topLeft(), size)
                               .adjusted(size.width() / 30, size.height() * 3 / 10, -size.width() / 30,
                                         -size.height() * 25 / 100));
    }
    bool isUp(const QImage &screen, int card) const
    {
        const QImage text = textOn(screen, card);
        return pixelsOfColour(text, text.rect(), game_.back) < text.width() * text.height();
    }
    bool becomes(int card, bool up)
    {
        return desktop_->waitForPicture([=, this](const QImage &screen) { return isUp(screen, card) == up; },
                                        5000);
    }

    void clickOn(int card) { desktop_->click(cards_[card].center()); }
    /// With the arrows from the card on which the keyboard is; a blank turns.
    void goTo(int card)
    {
        QStringList keys;
        for (; at_ / 6 != card / 6; at_ += at_ / 6 < card / 6 ? 6 : -6)
            keys << (at_ / 6 < card / 6 ? u"Down"_s : u"Up"_s);
        for (; at_ != card; at_ += at_ < card ? 1 : -1)
            keys << (at_ < card ? u"Right"_s : u"Left"_s);
        desktop_->key((keys << u"space"_s).join(u' '));
    }
    void turn(int card) { game_.byKeys ? goTo(card) : clickOn(card); }
    /// Turns a card and reads it; nothing if it does not come up.
    QByteArray read(int card)
    {
        turn(card);
        QByteArray seen; // in the very picture that shows it up: a miss is soon down again
        const bool isRead = desktop_->waitForPicture(
            [&](const QImage &screen) {
                const QImage text = textOn(screen, card);
                isSolved_ = pixelsOfColour(text, text.rect(), qRgb(0, 0, 0)) > 0;
                seen = {reinterpret_cast<const char *>(text.constBits()), text.sizeInBytes()};
                return isUp(screen, card);
            },
            5000);
        return isRead ? seen : QByteArray();
    }

    /// Plays until so many pairs are found: known pairs first, then unknown cards.
    void find(int pairs)
    {
        while (solved_ < pairs) {
            int first = -1;
            int second = -1;
            if (!twin_.isEmpty()) {
                std::tie(first, second) = twin_.takeFirst();
                turn(first);
                QVERIFY(becomes(first, true));
                turn(second);
            } else {
                first = unknown_.takeFirst();
                const QByteArray text = read(first);
                QVERIFY2(!text.isEmpty(), "the card is not up");
                second = known_.value(text, -1);
                known_[text] = first;
                if (second >= 0) {
                    turn(second);
                } else {
                    second = unknown_.takeFirst();
                    const QByteArray other = read(second);
                    QVERIFY(!other.isEmpty());
                    if (!isSolved_) { // no pair by chance
                        ++clicks_;
                        if (clicks_ == 1)
                            keep(u"two-up"_s);
                        if (known_.contains(other))
                            twin_ << std::pair(known_[other], second);
                        known_[other] = second;
                        QVERIFY2(becomes(first, false) && becomes(second, false), "the cards stay up");
                        continue;
                    }
                }
            }
            ++clicks_;
            ++solved_;
            QVERIFY(becomes(second, true));
        }
        keep(QString::number(pairs));
    }

    std::unique_ptr<Desktop> desktop_;
    const Game &game_;
    QRect cards_[36];
    QHash<QByteArray, int> known_; ///< text -> a card that has it
    QList<std::pair<int, int>> twin_;
    QList<int> unknown_;
    bool isSolved_ = false; ///< what was read last
    int solved_ = 0;
    int clicks_ = 0;
    int at_ = 0; ///< the card that the keyboard is on
};

/// One game with the pointer.
class MemoryByPointerTest : public MemoryByHandTest
{
    Q_OBJECT

public:
    MemoryByPointerTest()
        : MemoryByHandTest(stems)
    {}
};

/// And one with the keys.
class MemoryByKeysTest : public MemoryByHandTest
{
    Q_OBJECT

public:
    MemoryByKeysTest()
        : MemoryByHandTest(suffixes)
    {}
};

WORTEL_TEST(MemoryByPointerTest)
WORTEL_TEST(MemoryByKeysTest)
#include "tst_memory_by_hand.moc"
