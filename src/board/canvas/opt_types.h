// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/canvas/text_cache.h"
#include "board/tiles/tile_store.h"

#include <QFontMetrics>
#include <QObject>

struct MainControls;

/// The four option buttons `OptType` as filter and as counters: the selected one is the filter, the captions
/// are the counters.
class OptTypes : public QObject, public TileCounters, public TileFilter
{
    Q_OBJECT

public:
    explicit OptTypes(const MainControls &controls, QObject *parent = nullptr);

    QString caption(int index) const override;
    void setCaption(int index, const QString &text) override;
    int selected() const override;
    void select(int index) override;

signals:
    /// Button `index` has become the selected one. A press on the selected button is no click.
    void clicked(int index);

private:
    const MainControls &controls_;
};

/// The window as the measure of the tiles.
class FormMeasures : public BoardMeasures
{
public:
    explicit FormMeasures(const MainControls &controls);

    int textWidth(const QString &text) const override;
    int ScaleWidth() const override;
    int ScaleHeight() const override;
    int BandTop() const override;

private:
    const MainControls &controls_;
    QFontMetrics metrics_;
    mutable TextCache<int> widths_;
};
