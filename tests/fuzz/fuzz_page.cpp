// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "output/html_to_text.h"
#include "output/page_charset.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void fuzz::page(const QByteArray &bytes)
{
    const QString page = u"<BODY>"_s + decodePage(bytes);
    qsizetype last = 0;
    bool orderly = true;
    const PageText whole = HTML2Text(page, [&](qsizetype done) {
        orderly = orderly && done > last && done <= page.size();
        last = done;
        return true;
    });
    promise(orderly, "a pass tells its way in order");
    promise(whole.complaint.isEmpty(), "there is memory enough");
    promise(whole.text.size() <= 2 * page.size(), "no tag stands for more than itself");

    const PageText cut = HTML2Text(page, [](qsizetype) { return false; });
    promise(cut.text.size() <= whole.text.size() + 8, "a pass that is ended gives a part");

    // Without tags, entities and signs of control nothing changes.
    QString plain = page.mid(6);
    plain.removeIf([](QChar c) { return c < u' ' || c == u'<' || c == u'&' || c == u'%'; });
    promise(HTML2Text(u"<BODY>"_s + plain).text == plain, "plain letters stay");
}
