// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/canvas/board_view.h"
#include "board/canvas/text_cache.h"
#include "board/tiles/tile.h"

#include <QFont>
#include <QPainter>
#include <QStaticText>

#include <optional>
#include <vector>

class PictureBox;

/// The board's drawing surface: the persistent image of `picCanvas`. While it is frozen the calls are only
/// noted, and a clearing forgets what was noted before it; they are painted when it is unfrozen. So the
/// hidden steps of a bulk command cost no painting, and the picture ends as if they had been painted one by
/// one.
class CanvasSurface : public TileSurface
{
public:
    explicit CanvasSurface(PictureBox &box);

    void fillBox(int left, int top, int right, int bottom, Colour colour) override;
    void outlineBox(int left, int top, int right, int bottom, Colour colour) override;
    void printText(int x, int y, const QString &text, Colour colour) override;
    void clear() override;

    /// Where tiles are drawn on the canvas. Takes effect with the next clearing and drawing.
    const BoardView &view() const { return view_; }
    void setView(const BoardView &view) { view_ = view; }

    /// Suspends or resumes repainting. Not counted: one resume ends any number of suspends.
    void LockWindow(bool locked);
    bool isLocked() const;

    /// Keeps the painter open over many tiles. Nothing may yield or resize the box while one lives. Batches
    /// may be nested.
    class Batch
    {
    public:
        explicit Batch(CanvasSurface &surface);
        ~Batch();
        Batch(const Batch &) = delete;
        Batch &operator=(const Batch &) = delete;

    private:
        CanvasSurface &surface_;
    };

private:
    struct Step
    {
        enum Kind { Fill, Outline, Text, Clear } kind;
        QRect box; ///< of a text only the top left corner counts
        Colour colour;
        QString text;
    };

    void run(const Step &step);
    void paint(const Step &step);
    void open();
    void close();
    const QStaticText &laidOut(const QString &text);

    PictureBox &box_;
    BoardView view_;
    QFont font_;
    std::optional<QPainter> painter_;
    int batches_ = 0;
    std::vector<Step> noted_;
    TextCache<QStaticText> texts_; ///< laid out once: shaping costs more than painting
};

/// Freezes the board for a bulk command and unfreezes it in any case.
class FrozenBoard
{
public:
    explicit FrozenBoard(CanvasSurface &surface)
        : surface_(surface)
    {
        surface_.LockWindow(true);
    }
    ~FrozenBoard() { thaw(); }
    FrozenBoard(const FrozenBoard &) = delete;
    FrozenBoard &operator=(const FrozenBoard &) = delete;
    void thaw()
    {
        if (!thawed_)
            surface_.LockWindow(false);
        thawed_ = true;
    }

private:
    CanvasSurface &surface_;
    bool thawed_ = false;
};
