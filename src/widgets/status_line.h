// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

class GameProgressBar;

/// The progress bar as the window's status line. A mode has its line there for its whole run, a work lays its
/// own over it; when the work has ended, the mode's line is seen again.
class StatusLine
{
public:
    enum class Layer : std::uint8_t { Mode, Work };

    explicit StatusLine(GameProgressBar *bar)
        : bar_(bar)
    {}

    /// `maximum` at least 1; the value is 0.
    void show(Layer layer, int maximum, const QString &caption);
    /// Nothing if the layer has no line.
    void setCaption(Layer layer, const QString &caption);
    void setValue(Layer layer, int value);
    void hide(Layer layer);

private:
    struct Line
    {
        int maximum;
        int value;
        QString caption;
    };

    std::optional<Line> &line(Layer layer) { return lines_[static_cast<std::size_t>(layer)]; }
    void apply();

    GameProgressBar *bar_;
    std::array<std::optional<Line>, 2> lines_;
};
