// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/canvas/arrangement.h"
#include "board/canvas/bulk_tiles.h"
#include "board/canvas/canvas.h"
#include "board/canvas/canvas_surface.h"
#include "board/canvas/opt_types.h"
#include "board/canvas/placement.h"
#include "board/tiles/affix_homes.h"
#include "board/tiles/tile_store.h"
#include "platform/modes.h"
#include "platform/word_lists.h"
#include "support/test_ground.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"

#include <QLineEdit>
#include <QWidget>

/// A whole board for one test, without a window on the screen: the controls at the design size, the rooms of
/// the board on a test's ground, and short word lists.
struct TestBoard
{
    explicit TestBoard(quint64 seed = 1, const QSize &size = {632, 573})
        : t(seed)
    {
        form.resize(size);
        controls = makeMainControls(&form);
        layOutMainControls(controls, size.width(), size.height());
        emplaceRooms();
        optTypes->select(TileFilter::all);
        lists.WortelList.addAll({QStringLiteral("halt"), QStringLiteral("fahr"), QStringLiteral("spiel")});
        for (int i = 0; i < 3; ++i) {
            const QString number = QString::number(i);
            lists.PrefixList.add(QStringLiteral("ver") + number);
            lists.SuffixList.add(QStringLiteral("ung") + number);
            homes.prefixes.push_back({60 * i, 5, lists.PrefixList.at(i)});
            homes.suffixes.push_back({60 * i, 450, lists.SuffixList.at(i)});
        }
    }

    TestGround t;
    QWidget form;
    MainControls controls;
    Modes modes;
    WordLists lists;
    AffixHomes homes;
    std::unique_ptr<OptTypes> optTypes;
    std::unique_ptr<FormMeasures> measures;
    std::unique_ptr<CanvasSurface> surface;
    std::unique_ptr<TileStore> store;
    std::unique_ptr<Canvas> canvas;
    std::unique_ptr<Placement> placement;
    std::unique_ptr<Arrangement> arrangement;
    std::unique_ptr<BulkTiles> bulk;

    /// Lays a tile of that kind and counts it, as a command does.
    void lay(const TileKind &kind, int x, int y, const QString &text)
    {
        store->CanvasDrawWortel(x, y, text, kind.back, kind.text);
        optTypes->add(kind.filterIndex, 1);
        optTypes->updateTotal();
    }
    /// The tiles in store order, as "x,y text".
    QStringList described() const
    {
        QStringList tiles;
        for (const auto &tile : store->tiles())
            tiles.append(QStringLiteral("%1,%2 %3").arg(tile->xLeft()).arg(tile->yTop()).arg(tile->txt));
        return tiles;
    }
    QStringList texts() const
    {
        QStringList all;
        for (const auto &tile : store->tiles())
            all.append(tile->txt);
        return all;
    }
    /// The captions of the four counters.
    QStringList counters() const
    {
        return {optTypes->caption(0), optTypes->caption(1), optTypes->caption(2), optTypes->caption(3)};
    }
    /// The colour on the board at that logical pixel.
    QColor pixel(int x, int y) const
    {
        const QImage &image = controls.picCanvas->image();
        const double ratio = image.devicePixelRatio();
        return image.pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio));
    }

private:
    void emplaceRooms()
    {
        optTypes = std::make_unique<OptTypes>(controls);
        measures = std::make_unique<FormMeasures>(controls);
        surface = std::make_unique<CanvasSurface>(*controls.picCanvas);
        store = std::make_unique<TileStore>(t.ground, *optTypes, *optTypes, *surface, *measures);
        canvas = std::make_unique<Canvas>(t.ground, controls, modes, *store, *surface, *optTypes);
        placement = std::make_unique<Placement>(t.ground, controls, modes, lists, *canvas);
        arrangement = std::make_unique<Arrangement>(t.ground, controls, modes, *canvas, *placement);
        bulk = std::make_unique<BulkTiles>(t.ground, controls, lists, homes, *canvas, *placement);
    }
};

inline constexpr const TileKind &wortel = tileKinds[0];
inline constexpr const TileKind &prefix = tileKinds[1];
inline constexpr const TileKind &suffix = tileKinds[2];
