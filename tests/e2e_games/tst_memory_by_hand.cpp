// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "games/paarlon/memory_card.h"
#include "games/paarlon/memory_controls.h"
#include "support/test_class.h"

namespace {

/// A player who sees nothing but the screen and forgets nothing.
struct Player
{
    Desktop &desktop;
    QRgb back;
    bool byKeys;
    QList<QRect> cards;
    QHash<QByteArray, int> known; ///< picture of a text -> a card that has it
    QList<int> unknown;
    int clicks = 0;
    int at = 0; ///< the card that the keyboard is on
    bool isPair = false;

    /// Where a card's text stands; the same on each card, and nothing else is painted there.
    QImage textOn(const QImage &screen, int card) const
    {
        const QRect &c = cards.at(card);
        return screen.copy(c.adjusted(c.width() / 30, c.height() * 3 / 10, -c.width() / 30, -c.height() / 4));
    }
    /// Waits until the card is up or down. `text` becomes what it shows in the very picture that shows it up,
    /// for a miss is soon down again.
    bool becomes(int card, bool up, QByteArray *text = nullptr)
    {
        return desktop.waitForPicture([&](const QImage &screen) {
            const QImage seen = textOn(screen, card);
            if (text != nullptr)
                *text = {reinterpret_cast<const char *>(seen.constBits()), seen.sizeInBytes()};
            isPair = pixelsOfColour(seen, seen.rect(), qRgb(0, 0, 0)) > 0;
            return (pixelsOfColour(seen, seen.rect(), back) < seen.width() * seen.height()) == up;
        });
    }
    void turn(int card)
    {
        if (!byKeys) {
            desktop.click(cards.at(card).center());
            return;
        }
        QStringList keys;
        for (; at / 6 != card / 6; at += at / 6 < card / 6 ? 6 : -6)
            keys << (at / 6 < card / 6 ? u"Down"_s : u"Up"_s);
        for (; at != card; at += at < card ? 1 : -1)
            keys << (at < card ? u"Right"_s : u"Left"_s);
        desktop.key((keys << u"space"_s).join(u' '));
    }
    /// One turn: an unknown card, and its twin or another unknown one. False if a card does not do its part.
    bool play()
    {
        QByteArray text, other;
        const int first = unknown.takeFirst();
        turn(first);
        if (!becomes(first, true, &text))
            return false;
        int second = known.value(text, -1);
        known[text] = first;
        if (second < 0)
            second = unknown.takeFirst();
        turn(second);
        ++clicks;
        if (!becomes(second, true, &other))
            return false;
        if (isPair = isPair || unknown.isEmpty(); isPair) // the window for the name may cover the last pair
            return true;
        if (known.contains(other))
            unknown.prepend(second);
        else
            known[other] = second;
        return becomes(first, false) && becomes(second, false);
    }
};

} // namespace

class MemoryByHandTest : public QObject
{
    Q_OBJECT

private slots:
    // clang-format off
    void byPointer() { wholeGame(u"^Wortel-Memory$"_s, u"Down Return"_s, colour::red, u"Wortel"_s, u"Wortele"_s, false); }
    void byKeys() { wholeGame(u"^Suffix-Memory$"_s, u"Down Down Return"_s, colour::blue, u"Suffixe"_s, u"Suffixe"_s, true); }
    // clang-format on

private:
    void wholeGame(const QString &title, const QString &keys, QRgb back, const QString &label,
                   const QString &plural, bool byKeys)
    {
        Desktop desktop(QSize(1024, 640));
        const auto keep = [&](const char *moment) {
            desktop.keepPicture(u"memory-%1-%2"_s.arg(label, QLatin1String(moment)));
        };
        quiet(desktop);
        QVERIFY(startKnownBoard(desktop));
        Desktop::pause(1200);
        const QRect board = desktop.boardArea();
        desktop.chooseFromMenu(board.center() + QPoint(board.width() / 4, 0),
                               u"Down "_s.repeated(9) + u"Right Down Right "_s + keys);
        const QRect window = desktop.geometry(desktop.waitForWindow(title));
        Desktop::pause(700);
        keep("intro");
        const QPoint panel = window.bottomRight() - QPoint(20, 20);
        // The gradient, not the black ball of the intro, which comes by there as well.
        QVERIFY(desktop.waitForPicture([&](const QImage &seen) { return qGreen(seen.pixel(panel)) > 100; }));
        Desktop::pause(1000); // until the cards take keys, on a busy machine too
        keep("dealt");

        Player player{desktop, back, byKeys, {}, {}, {}, 0, 0, false};
        QWidget same;
        const MemoryControls controls = makeMemoryControls(&same);
        layOutMemoryControls(controls, window.size());
        for (const MemoryCard *card : controls.picMorphemeCard) {
            player.cards << card->geometry().translated(window.topLeft());
            player.unknown << int(player.unknown.size());
        }
        for (int pairs = 0; pairs < 18; pairs += player.isPair ? 1 : 0) {
            QVERIFY2(player.play(), qPrintable(QString::number(pairs)));
            keep(pairs < 9 ? "first-half" : "second-half");
        }

        QVERIFY(!desktop.waitForWindow(u"^Bestenliste Paarlon \\(%1\\)$"_s.arg(plural)).isEmpty());
        desktop.enter(u"Mia"_s);
        const QString list = u"^Bestenliste - Paarlon \\(%1\\)$"_s.arg(label);
        QVERIFY(desktop.answer(list));
        // The score that the player has counted, in the list of that kind.
        const QString record =
            label + u"Top 10:=%20"_s + QString::number(player.clicks) + u",Mia~990,Wortel~"_s;
        QVERIFY2(desktop.storedSettings().contains(record), qPrintable(record + desktop.storedSettings()));
        Desktop::pause(300);
        desktop.key(u"Escape"_s);
        QVERIFY(desktop.waitForNoWindow(title));
        QVERIFY(desktop.close());
    }
};

WORTEL_TEST(MemoryByHandTest)
#include "tst_memory_by_hand.moc"
