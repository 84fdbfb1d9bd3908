// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/canvas.h"

#include "board/canvas/opt_types.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "widgets/colour.h"
#include "widgets/control_sheet.h"
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

Canvas::Canvas(Ground &ground, const MainControls &controls, ControlSheet &sheet, TileStore &store,
               CanvasSurface &surface, OptTypes &optTypes)
    : ground_(ground)
    , controls_(controls)
    , sheet_(sheet)
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

void Canvas::draw(const TileList &tiles, bool everyKind)
{
    surface_.clear();
    const CanvasSurface::Batch batch(surface_);
    for (const auto &tile : tiles)
        if (everyKind || optTypes_.shows(tile->BGColor))
            tile->Draw(surface_);
}

void Canvas::drawStore(bool everyKind)
{
    draw(store_.tiles(), everyKind);
    emit drawn();
}

void Canvas::setView(const BoardView &view)
{
    surface_.setView(view);
    repaint();
}

void Canvas::CanvasRedrawAll()
{
    Procedure step{ground_.log, "CanvasRedrawAll", form};
    step([&] { drawStore(true); });
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
            drawStore(false);
    });
}

void Canvas::repaint()
{
    Procedure step{ground_.log, "repaint", form, Procedure::Silent};
    step([&] { drawStore(false); });
    step([&] { optTypes_.updateTotal(); });
}

void Canvas::drawTiles(const TileList &tiles) { draw(tiles, false); }

void Canvas::drawShown(TileSurface &paper) const
{
    for (const auto &tile : store_.tiles())
        if (optTypes_.shows(tile->BGColor))
            tile->Draw(paper);
}

void Canvas::DrawMonoChrome(TileSurface &paper) const
{
    for (const auto &tile : store_.tiles())
        tile->DrawBAndW(paper);
}

void Canvas::RecallFilter(int index)
{
    Procedure step{ground_.log, "RecallFilter", form};
    {
        const FrozenBoard frozen(surface_);
        step([&] { ground_.pump.yield(); });
        step([&] { optTypes_.select(TileFilter::all); });
        step([&] { ground_.pump.yield(); });
        step([&] { optTypes_.select(index); });
        // A button that was selected all the time has fired no click.
        step([&] { repaint(); });
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
    step([&] { repaint(); });
    step([&] { ground_.pump.yield(); });
}

void Canvas::CanvasEraseWortel(QPoint place, const QString &text, Colour kind)
{
    Procedure step{ground_.log, "CanvasEraseWortel", form};
    const TileList &tiles = store_.tiles();
    const auto hit = std::find_if(tiles.begin(), tiles.end(), [&](const auto &tile) {
        return QPoint(tile->xLeft(), tile->yTop()) == place && tile->BGColor == kind && tile->txt == text;
    });
    if (hit != tiles.end())
        eraseTile(step, static_cast<int>(hit - tiles.begin()));
}

void Canvas::CanvasEraseAllAffix(Colour colour)
{
    Procedure step{ground_.log, "CanvasEraseAllAffix", form};
    const int filter = optTypes_.selected();
    step([&] {
        TileList others = store_.takeAll();
        std::erase_if(others, [colour](const auto &tile) { return tile->BGColor == colour; });
        store_.replaceAll(std::move(others));
        if (const TileKind *kind = kindOfColour(colour))
            optTypes_.set(kind->filterIndex, 0);
    });
    step([&] { repaint(); });
    step([&] { ground_.pump.yield(); });
    step([&] { RecallFilter(filter); });
}

void Canvas::EditObject(QPoint place, const QString &text, Colour kind)
{
    Procedure step{ground_.log, "EditObject", form};
    const TileKind *row = kindOfColour(kind);
    if (!row)
        return;
    step([&] {
        // The corner itself is not inside a tile, and another tile may lie over the pixel next to it: the
        // tile is known by its place and kind.
        TileList tiles = store_.takeAll();
        const auto old = std::find_if(tiles.begin(), tiles.end(), [&](const auto &tile) {
            return tile->xLeft() == place.x() && tile->yTop() == place.y() && tile->BGColor == kind;
        });
        if (old != tiles.end()) {
            tiles.erase(old);
            tiles.push_back(store_.makeTile(place.x(), place.y(), text, *row));
        }
        store_.replaceAll(std::move(tiles));
    });
    step([&] { repaint(); });
    step([&] { ground_.pump.yield(); });
}

// Holding ------------------------------------------------------------------------------------------

bool Canvas::CanvasSelectWortel(int x, int y)
{
    Procedure step{ground_.log, "CanvasSelectWortel", form};
    bool isPicked = false;
    step([&] {
        for (const auto &tile : store_.tiles()) {
            if (!tile->Inside(x, y))
                continue;
            store_.setCurrent(tile.get());
            if (!optTypes_.shows(tile->BGColor))
                continue;
            isPicked = true;
            tile->Selected = true;
            showHeld(*tile);
            break;
        }
    });
    if (isPicked)
        emit picked();
    if (isPicked && WordCheckDrag_)
        emit wordCheckDragBegins();
    return isPicked;
}

void Canvas::showHeld(const cWortel &tile)
{
    FloatingTile &held = *controls_.BtnMove1;
    const QString shown = tileText(tile.txt);
    held.setTile(shown + u' ', toQColor(tile.BGColor), toQColor(tile.TxtColor));
    held.setScale(view().scale);
    const int width = store_.measures().textWidth(shown + QString(heldBlanks, u' '));
    held.setGeometry(QRect(view().toCanvas({tile.xLeft(), tile.yTop()}),
                           QSize(view().length(width), view().length(heldHeight))));
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
                if (optTypes_.shows(tile->BGColor))
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
    WordCheckDrag_ = index == 0;
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
    static constexpr SheetRow number[] = {{tool<&MainControls::Text1>, SheetRow::Disabled}};
    Procedure step{ground_.log, "Check1_Click", form};
    step([&] { sheet_.set(Reason::WholeList, number, controls_.Check1->isChecked()); });
}
