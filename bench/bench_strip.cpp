// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "widgets/msg_scroller.h"

#include <QImage>

namespace {

constexpr int ticksPerRound = 400;

/// Runs a strip of `words` words, painting each tick.
class Run
{
public:
    explicit Run(int words)
    {
        strip_.resize(600, 30);
        strip_.setSeperator(QString(36, u' '));
        for (int word = 0; word < words; ++word)
            strip_.AddItem(QStringLiteral("Verständnis"));
        strip_.setScroll(true);
        strip_.ToggleScroll();
        while (strip_.Offset() < 0)
            strip_.tick();
    }

    /// As the screen sees it: a picture every 16 milliseconds, most of them between two ticks.
    void pictures()
    {
        strip_.show();
        strip_.ToggleScroll();
        for (int picture = 1; picture <= ticksPerRound; ++picture) {
            strip_.advance(picture * 16);
            strip_.render(&picture_);
        }
        strip_.ToggleScroll();
    }

    void ticks()
    {
        for (int tick = 0; tick < ticksPerRound; ++tick) {
            strip_.tick();
            strip_.render(&picture_);
        }
    }

private:
    MsgScroller strip_;
    QImage picture_{600, 30, QImage::Format_ARGB32_Premultiplied};
};

const bench::Row tickOfLongStrip{"strip: a tick with 1,000 words to one with 50", 2.0, [] {
                                     Run longStrip(1000);
                                     Run shortStrip(50);
                                     return bench::ratio([&] { longStrip.ticks(); },
                                                         [&] { shortStrip.ticks(); });
                                 }};

const bench::Row picturesOfRun{"strip: a picture of its glide to one of a tick", 1.3, [] {
                                   Run glides(50);
                                   Run ticks(50);
                                   return bench::ratio([&] { glides.pictures(); }, [&] { ticks.ticks(); });
                               }};

} // namespace
