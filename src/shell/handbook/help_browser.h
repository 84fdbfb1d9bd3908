// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

class HelpPages;

/// Shows the handbook's pages and nothing else: neither a page nor a picture nor a style from anywhere but
/// the handbook's folder is ever loaded, and a link that leads elsewhere does nothing.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    static constexpr int smallestText = 12; ///< pixels
    static constexpr int normalText = 16;
    static constexpr int largestText = 36;

    /// `pages` must live as long as the browser.
    explicit HelpBrowser(const HelpPages &pages, QWidget *parent = nullptr);

    QVariant loadResource(int type, const QUrl &address) override;
    /// Makes the text larger or smaller by a number of pixels, within the limits.
    void growText(int pixels);
    /// A copy of the page that is shown, in sizes for paper. The caller owns it; it must not outlive the
    /// browser.
    QTextDocument *makePaperCopy();

protected:
    void doSetSource(const QUrl &address, QTextDocument::ResourceType type) override;

private:
    const HelpPages &pages_;
};
