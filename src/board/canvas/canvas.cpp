// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/canvas.h"

#include "board/canvas/opt_types.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "widgets/colour.h"
#include "widgets/floating_tile.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"

#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace {
constexpr int heldBlanks = 11; // what the floating copy is wider than its text by
constexpr auto form = "frmMain";

/// The small square of the mode "Ziehmodus Wortkontrolle".
QCursor squarePointer()
{
    constexpr int size = 15;
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.fillRect(0, 0, size, size, Qt::white);
    painter.fillRect(1, 1, size - 2, size - 2, Qt::black);
    painter.fillRect(3, 3, size - 6, size - 6, Qt::white);
    painter.fillRect(6, 6, size - 12, size - 12, Qt::black);
    painter.end();
    return QCursor(picture);
}
} // namespace

Canvas::Canvas(Ground &ground, const MainControls &controls, Modes &modes, TileStore &store,
               CanvasSurface &surface, OptTypes &optTypes)
    : ground_(ground)
    , controls_(controls)
    , modes_(modes)
    , store_(store)
    , surface_(surface)
    , optTypes_(optTypes)
{
    connect(&optTypes, &OptTypes::clicked, this, &Canvas::OptType_Click);
    connect(controls.Check1, &PressButton::toggled, this, &Canvas::Check1_Click);
    auto *dragModes = new QButtonGroup(this);
    for (std::size_t i = 0; i < controls.Option1.size(); ++i) {
        PressButton *button = controls.Option1[i];
        button->setCheckable(true);
        dragModes->addButton(button);
        connect(button, &PressButton::toggled, this, [this, i](bool on) {
            if (on)
                Option1_Click(static_cast<int>(i));
        });
    }
}

// Drawing ------------------------------------------------------------------------------------------

void Canvas::draw(bool everyKind)
{
    surface_.clear();
    const CanvasSurface::Batch batch(surface_);
    for (const auto &tile : store_.tiles())
        if (everyKind || optTypes_.shows(tile->BGColor))
            tile->Draw(surface_);
}

void Canvas::CanvasRedrawAll()
{
    Procedure step{ground_.log, "CanvasRedrawAll", form};
    step([&] { draw(true); });
    step([&] { ground_.pump.yield(); });
    step([&] { optTypes_.updateTotal(); });
}

void Canvas::CanvasFilterAndDraw()
{
    Procedure step{ground_.log, "CanvasFilterAndDraw", form};
    step([&] {
        if (optTypes_.selected() == TileFilter::all)
            surface_.clear();
        else
            draw(false);
    });
}

void Canvas::redrawFiltered()
{
    if (optTypes_.selected() == TileFilter::all)
        CanvasRedrawAll();
    else
        CanvasFilterAndDraw();
}

void Canvas::DrawMonoChrome()
{
    Procedure step{ground_.log, "DrawMonoChrome", form};
    step([&] {
        surface_.clear();
        const CanvasSurface::Batch batch(surface_);
        for (const auto &tile : store_.tiles())
            tile->DrawBAndW(surface_);
    });
    step([&] { ground_.pump.yield(); });
}

void Canvas::RecallFilter(int index)
{
    Procedure step{ground_.log, "RecallFilter", form};
    {
        const FrozenBoard frozen(surface_);
        step([&] { ground_.pump.yield(); });
        // A button that is already selected fires no click, hence the way through "Alle".
        step([&] { optTypes_.select(TileFilter::all); });
        step([&] { ground_.pump.yield(); });
        step([&] { optTypes_.select(index); });
    }
    step([&] { ground_.pump.yield(); });
    step([&] { optTypes_.updateTotal(); });
}

void Canvas::OptType_Click(int index)
{
    Procedure step{ground_.log, "OptType_Click", form};
    step([&] {
        if (index == TileFilter::all)
            CanvasRedrawAll();
        else
            CanvasFilterAndDraw();
    });
}

// Removing and changing ----------------------------------------------------------------------------

void Canvas::eraseTile(Procedure &step, int index)
{
    step([&] { store_.removeAt(index); });
    step([&] { optTypes_.updateTotal(); });
    const int filter = optTypes_.selected();
    step([&] { CanvasRedrawAll(); });
    step([&] { optTypes_.select(TileFilter::all); });
    step([&] { optTypes_.select(filter); });
}

void Canvas::CanvasEraseWortel(int x, int y, std::optional<Colour> kind)
{
    Procedure step{ground_.log, "CanvasEraseWortel", form};
    const TileList &tiles = store_.tiles();
    const auto hit = std::find_if(tiles.begin(), tiles.end(), [&](const auto &tile) {
        return tile->Inside(x, y) && (!kind || tile->BGColor == *kind);
    });
    if (hit != tiles.end())
        eraseTile(step, static_cast<int>(hit - tiles.begin()));
}

void Canvas::CanvasEraseAllAffix(Colour colour)
{
    Procedure step{ground_.log, "CanvasEraseAllAffix", form};
    const int filter = optTypes_.selected();
    step([&] { surface_.clear(); });
    step([&] {
        TileList scratch = store_.takeAll();
        if (const TileKind *kind = kindOfColour(colour))
            optTypes_.set(kind->filterIndex, 0);
        const CanvasSurface::Batch batch(surface_);
        for (auto &tile : scratch)
            if (tile->BGColor != colour) {
                tile->Draw(surface_);
                store_.append(std::move(tile));
            }
    });
    step([&] { ground_.pump.yield(); });
    step([&] { optTypes_.updateTotal(); });
    step([&] { RecallFilter(filter); });
}

void Canvas::EditObject(const QString &pos, const QString &text, Colour kind)
{
    Procedure step{ground_.log, "EditObject", form};
    const TileKind *row = kindOfColour(kind);
    if (!row)
        return;
    step([&] {
        const Int16 x(CInt(CDbl(pos.section(u',', 0, 0))));
        const Int16 y(CInt(CDbl(pos.section(u',', 1, 1))));
        // The corner itself is not inside a tile, and another tile may lie over the pixel next to it: the
        // tile is known by its place and kind.
        const TileList &tiles = store_.tiles();
        for (int i = 0; i < store_.count(); ++i) {
            const cWortel &tile = *tiles[static_cast<std::size_t>(i)];
            if (tile.xLeft() == x && tile.yTop() == y && tile.BGColor == kind) {
                eraseTile(step, i);
                break;
            }
        }
        optTypes_.add(row->filterIndex, -1, true);
        store_.CanvasDrawWortel(x, y, text, row->back, row->text);
        optTypes_.add(row->filterIndex, 1);
    });
}

// Holding ------------------------------------------------------------------------------------------

bool Canvas::CanvasSelectWortel(int x, int y)
{
    Procedure step{ground_.log, "CanvasSelectWortel", form};
    bool picked = false;
    step([&] {
        for (const auto &tile : store_.tiles()) {
            if (!tile->Inside(x, y))
                continue;
            store_.setCurrent(tile.get());
            if (!optTypes_.shows(tile->BGColor))
                continue;
            picked = true;
            tile->Selected = true;
            showHeld(*tile);
            break;
        }
    });
    if (picked && modes_.WordCheckDrag && modes_.MoveAllowed)
        emit wordCheckDragBegins();
    return picked;
}

void Canvas::showHeld(const cWortel &tile)
{
    FloatingTile &held = *controls_.BtnMove1;
    const QString shown = tileText(tile.txt);
    held.setTile(shown + u' ', toQColor(tile.BGColor), toQColor(tile.TxtColor));
    held.setGeometry(tile.xLeft(), tile.yTop(),
                     store_.measures().textWidth(shown + QString(heldBlanks, u' ')), heldHeight);
    held.raise();
    held.show();
}

void Canvas::CanvasUnSelectAllWortel()
{
    Procedure step{ground_.log, "CanvasUnSelectAllWortel", form};
    step([&] {
        for (const auto &tile : store_.tiles())
            if (tile->Selected) {
                tile->Selected = false;
                tile->Draw(surface_);
            }
    });
    step([&] { ground_.pump.yield(); });
    step([&] { controls_.lblMove->hide(); });
}

// Buttons ------------------------------------------------------------------------------------------

void Canvas::Option1_Click(int index)
{
    Procedure step{ground_.log, "Option1_Click", form};
    modes_.WordCheckDrag = index == 0;
    step([&] { controls_.BtnMove1->hide(); });
    if (index == 0) {
        step([&] { controls_.picCanvas->setCursor(squarePointer()); });
        return;
    }
    // The pointer deliberately keeps the shape of the other mode.
    const int filter = optTypes_.selected();
    step([&] { CanvasUnSelectAllWortel(); });
    step([&] { ground_.pump.yield(); });
    step([&] { RecallFilter(filter); });
    step([&] { ground_.pump.yield(); });
}

void Canvas::Check1_Click()
{
    Procedure step{ground_.log, "Check1_Click", form};
    step([&] { controls_.Text1->setEnabled(!controls_.Check1->isChecked()); });
}
