// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "games/kernling/kernling_text.h"

#include <QTextCursor>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

constexpr int hits = 2000;
constexpr int letters = 300000;
constexpr int wordLength = 4;

QString longText()
{
    const QString line = u"Die Wirkung wirkt verwirkt auf das Wirken ein, wie es schon immer war.\n"_s;
    return line.repeated(letters / line.size() + 1).left(letters);
}

std::vector<KernlingText::Run> runs()
{
    std::vector<KernlingText::Run> all;
    for (int hit = 0; hit < hits; ++hit)
        all.push_back({hit * (letters / hits) + 3, wordLength});
    return all;
}

void paintBare(QTextDocument &document, const QColor &colour)
{
    QTextCharFormat painted;
    painted.setBackground(colour);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (const KernlingText::Run &run : runs()) {
        cursor.setPosition(run.start);
        cursor.setPosition(run.start + run.length, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(painted);
    }
    cursor.endEditBlock();
}

/// Painted in turn in two colours, so that each time something changes.
double paintRatio()
{
    KernlingText text;
    text.resize(600, 300);
    text.show();
    text.replaceText(longText());
    QTextDocument document;
    document.setPlainText(longText());
    bool red = false;
    bool bareRed = false;
    return bench::ratio([&] { text.paintRuns(runs(), (red = !red) ? Qt::red : Qt::blue); },
                        [&] { paintBare(document, (bareRed = !bareRed) ? Qt::red : Qt::blue); });
}

const bench::Row paintingHits{
    "stem game: painting 2,000 hits in 300,000 letters to the same in a bare document", 3.0, paintRatio};

} // namespace
