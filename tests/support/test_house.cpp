// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_house.h"

#include <QApplication>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

int indexOf(const std::vector<MenuItem> &items, int id)
{
    for (const MenuItem &item : items) {
        if (item.id == id && item.enabled && item.kind == MenuItem::Kind::Command)
            return item.index;
        if (const int below = indexOf(item.children, id))
            return below;
    }
    return 0;
}

} // namespace

TestHouse::Files::Files(TestGround &ground)
{
    ground.writeFile(u"text\\Hauptbausteine.Txt"_s, u"halt\r\nfahr\r\nspiel\r\n"_s);
    ground.writeFile(u"facit\\Hauptbausteine.lex"_s, u"Haus\r\nlaufen\r\nLäufer\r\n"_s);
    ground.writeFile(u"affix\\prefix.afx"_s, u"ver0\r\nver1\r\nver2\r\n"_s);
    ground.writeFile(u"affix\\suffix.afx"_s, u"ung0\r\nung1\r\nung2\r\n"_s);
    ground.writeFile(u"text kurz lang\\kurzer Stammvokal.Txt"_s, u"ball\r\n"_s);
    ground.writeFile(u"text kurz lang\\langer Stammvokal.Txt"_s, u"bahn\r\n"_s);
    ground.writeFile(u"lextip.ini"_s, u"[Tipp]\r\nhauptbausteine=Ein Tipp\r\n"_s);
    ground.writeFile(u"vokaltip.ini"_s, u"[Tipp]\r\nKurzvokal=Kurz\r\nLangvokal=Lang\r\n"_s);
    for (const auto &[key, value] : {std::pair{"NumWortel", "0"}, {"ShowWelcomeMsg", "0"}})
        ground.store.SaveSetting(u"Settings"_s, QLatin1String(key), QLatin1String(value));
}

TestHouse::TestHouse(quint64 seed, const QSize &size, bool loadsAtOnce, const StartFacts &facts)
    : t(seed)
    , form(t.ground, facts)
    , r(form.rooms())
    , controls(form.controls())
    , play(form.play())
    , lists(form.lists())
    , gate(t.gate)
{
    form.resize(size);
    QResizeEvent resized(size, size);
    QCoreApplication::sendEvent(&form, &resized);
    r.cp.chooseBy([this](MenuName name, const QPoint &position) {
        ++menu.shown;
        menu.lastName = name;
        menu.lastPosition = position;
        return menu.choose == 0 ? 0 : indexOf(r.menus.Restore(name), menu.choose);
    });
    if (!loadsAtOnce)
        return;
    form.Form_Load();
    r.store.replaceAll({});
    r.store.recount();
    r.canvas.repaint();
    r.homes = {};
    for (int i = 0; i < 3; ++i) {
        r.homes.prefixes.push_back({60 * i, 5, lists.PrefixList.at(i)});
        r.homes.suffixes.push_back({60 * i, 450, lists.SuffixList.at(i)});
    }
    r.undo.ClearCollBuffer();
    t.pump.yields = 0;
    t.sound.resources.clear();
}

TestHouse::~TestHouse()
{
    t.pump.onYield = nullptr;
    t.pump.onServe = nullptr;
}

void TestHouse::lay(const TileKind &kind, int x, int y, const QString &text)
{
    r.store.CanvasDrawWortel(x, y, text, kind.back, kind.text);
    r.optTypes.add(kind.filterIndex, 1);
    r.optTypes.updateTotal();
}

QStringList TestHouse::described() const
{
    QStringList tiles;
    for (const auto &tile : r.store.tiles())
        tiles.append(u"%1,%2 %3"_s.arg(tile->xLeft()).arg(tile->yTop()).arg(tile->txt));
    return tiles;
}

QStringList TestHouse::texts() const
{
    QStringList all;
    for (const auto &tile : r.store.tiles())
        all.append(tile->txt);
    return all;
}

QStringList TestHouse::counters() const
{
    return {r.optTypes.caption(0), r.optTypes.caption(1), r.optTypes.caption(2), r.optTypes.caption(3)};
}

bool TestHouse::countersEqualTiles() const { return countersEqualTiles(r); }

bool TestHouse::countersEqualTiles(const Rooms &r)
{
    int sum = 0;
    for (const TileKind &kind : tileKinds) {
        sum += r.store.countOf(kind.back);
        if (r.optTypes.value(kind.filterIndex) != r.store.countOf(kind.back))
            return false;
    }
    return r.optTypes.value(TileFilter::all) == sum;
}

QColor TestHouse::pixel(int x, int y) const
{
    const QImage &image = controls.picCanvas->image();
    const double ratio = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio));
}

void TestHouse::mouse(QEvent::Type type, const QPoint &point, Qt::MouseButton button,
                      Qt::MouseButtons buttons, Qt::KeyboardModifiers shift)
{
    QMouseEvent event(type, point, controls.picCanvas->mapToGlobal(point), button, buttons, shift);
    QApplication::sendEvent(controls.picCanvas, &event);
}

void TestHouse::press(const QPoint &point, Qt::MouseButton button, Qt::KeyboardModifiers shift)
{
    mouse(QEvent::MouseButtonPress, point, button, button, shift);
}

void TestHouse::drag(const QPoint &point)
{
    mouse(QEvent::MouseMove, point, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
}

void TestHouse::release(const QPoint &point, Qt::MouseButton button)
{
    mouse(QEvent::MouseButtonRelease, point, button, Qt::NoButton, Qt::NoModifier);
}

void TestHouse::click(const QPoint &point, Qt::MouseButton button, Qt::KeyboardModifiers shift)
{
    press(point, button, shift);
    release(point, button);
}

void TestHouse::run(command::From from, int id, const QPoint &point)
{
    if (const Gate::Passage passage = gate.enter(Gate::Way::Play))
        r.router.run(from, id,
                     from == command::From::Key ? Press{point, r.optTypes.selected(), nullptr, {}, {}}
                                                : r.router.pressAt(point));
}

void TestHouse::tool(PressButton *button, Qt::MouseButton with, Qt::KeyboardModifiers shift)
{
    QTest::mouseClick(button, with, shift);
}

void TestHouse::key(Qt::Key letter)
{
    QWidget *focus = form.focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &form, letter, Qt::ControlModifier);
}

bool TestHouse::offers(int id) const { return indexOf(r.menus.Restore(MenuName::MainMenu), id) != 0; }

void TestHouse::settle()
{
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
}

QString TestHouse::troubleOf(Rooms &r, const MainControls &controls, const PlayState &play, const Gate &gate)
{
    if (!gate.isFree())
        return u"something is still on the stack"_s;
    if (gate.work() != nullptr)
        return u"a work goes on"_s;
    for (const auto &tile : r.store.tiles())
        if (tile->Selected)
            return u"a tile is still held"_s;
    if (r.pointer.isHolding() || controls.Dropper1->isHighlighted())
        return u"a tile is in the hand"_s;
    if (r.surface.isLocked())
        return u"the board is frozen"_s;
    if (QGuiApplication::overrideCursor() != nullptr)
        return u"the pointer is still the hourglass"_s;
    if (!controls.Label4->isHidden())
        return u"the cancel sign is still there"_s;
    const bool retypes = play.RetypeActive();
    const bool game = play.GameActive();
    const bool builds = game && play.phase() == PlayState::Phase::Preparing;
    const bool plays = retypes || game;
    if (controls.GameProgress->isHidden() == plays)
        return u"the status line is wrong"_s;
    const bool dictionaryOpen = r.dictionary.isOpen();
    struct Wish
    {
        const char *what;
        bool is;
        bool wanted;
    };
    for (const Wish &wish : {
             Wish{"Check2 is hidden", controls.Check2->isHidden(), plays},
             {"Check2 acts", controls.Check2->isEnabled(), true},
             {"Command5 acts", controls.Command5->isEnabled(), !builds},
             {"Command2 acts", controls.Command2->isEnabled(), !builds && !dictionaryOpen},
             {"Command3 acts", controls.Command3->isEnabled(), !plays},
             {"Check3 acts", controls.Check3->isEnabled(), !retypes},
             {"Check3 is hidden", controls.Check3->isHidden(), false},
             {"Check4 is hidden", controls.Check4->isHidden(), false},
             {"Check4 acts", controls.Check4->isEnabled(), !game},
             {"Picture3 is hidden", controls.Picture3->isHidden(), false},
             {"Dropper1 acts", controls.Dropper1->isEnabled(), !builds},
             {"Label1 is hidden", controls.Label1->isHidden(), !game},
             {"Option1 acts", controls.Option1[0]->isEnabled(), !retypes && !builds && !dictionaryOpen},
         })
        if (wish.is != wish.wanted)
            return u"%1: %2 (retypes %3, game %4, builds %5, dictionary open %6)"_s
                .arg(QLatin1String(wish.what))
                .arg(wish.is)
                .arg(retypes)
                .arg(game)
                .arg(builds)
                .arg(dictionaryOpen);
    const QImage seen = controls.picCanvas->image().copy();
    r.canvas.repaint();
    if (seen != controls.picCanvas->image())
        return u"the board's picture is not what lies there"_s;
    if (!countersEqualTiles(r))
        return u"the counters say %1, %2, %3, %4 for %5 tiles"_s
            .arg(r.optTypes.caption(0), r.optTypes.caption(1), r.optTypes.caption(2), r.optTypes.caption(3))
            .arg(r.store.count());
    return {};
}
