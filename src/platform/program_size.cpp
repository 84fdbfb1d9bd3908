// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/program_size.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize comfortable{1000, 600};
constexpr QSize tightest{850, 475}; ///< the boxes and the options fit into it

int largestWith(QSize room, QSize screen)
{
    using namespace program_size;
    const int percent = std::min(screen.width() * 100 / room.width(), screen.height() * 100 / room.height());
    return std::clamp(percent / step * step, smallest, largest);
}

} // namespace

int program_size::wishOf(const QString &stored)
{
    QString digits = stored.trimmed();
    if (digits.endsWith(u'%'))
        digits.chop(1);
    bool isNumber = false;
    const double percent = digits.trimmed().toDouble(&isNumber);
    if (!isNumber || !(percent > 0))
        return automatic;
    const double bounded = std::clamp<double>(percent, smallest, largest);
    return static_cast<int>(std::lround(bounded / step)) * step;
}

QString program_size::storedText(int wish)
{
    return wish == automatic ? u"automatisch"_s : QString::number(wish);
}

QString program_size::textOf(int wish)
{
    return wish == automatic ? storedText(wish) : storedText(wish) + u" %"_s;
}

int program_size::suggested(QSize screen) { return largestWith(comfortable, screen); }

int program_size::most(QSize screen) { return largestWith(tightest, screen); }

int program_size::onScreen(int wish, QSize screen)
{
    return wish == automatic ? suggested(screen) : std::min(wish, most(screen));
}

int program_size::larger(int now, QSize screen) { return std::min((now / step + 1) * step, most(screen)); }

int program_size::smaller(int now) { return std::max((now - 1) / step * step, smallest); }
