// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/handbook/help_browser.h"

#include "platform/files.h"
#include "platform/picture_file.h"
#include "platform/runtime_error.h"
#include "shell/handbook/help_pages.h"

#include <QImage>
#include <QUrl>

#include <algorithm>

namespace {

constexpr double paperText = 11; ///< points

/// What stands for a file that is not loaded. It must not be null: the document would then go and fetch a
/// local file itself.
QVariant nothingFor(int type)
{
    if (type != QTextDocument::ImageResource)
        return QByteArray("");
    QImage blank(1, 1, QImage::Format_ARGB32);
    blank.fill(Qt::transparent);
    return blank;
}

} // namespace

HelpBrowser::HelpBrowser(const HelpPages &pages, QWidget *parent)
    : QTextBrowser(parent)
    , pages_(pages)
{
    QFont letters = font();
    letters.setPixelSize(normalText);
    setFont(letters);
    document()->setDocumentMargin(14);
    // A word that was found stays marked while the search box has the keyboard.
    QPalette colours = palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
    colours.setColor(QPalette::Base, Qt::white);
    colours.setColor(QPalette::Text, Qt::black);
    setPalette(colours);
}

QVariant HelpBrowser::loadResource(int type, const QUrl &address)
{
    const QString file = pages_.fileOf(address);
    try {
        if (type == QTextDocument::ImageResource)
            return readPicture(file);
        return QString::fromUtf8(ReadWholeFile(file));
    } catch (const RuntimeError &) {
        return nothingFor(type);
    }
}

void HelpBrowser::doSetSource(const QUrl &address, QTextDocument::ResourceType type)
{
    if (!pages_.fileOf(source().resolved(address)).isEmpty())
        QTextBrowser::doSetSource(address, type);
}

void HelpBrowser::growText(int pixels)
{
    QFont letters = font();
    letters.setPixelSize(std::clamp(letters.pixelSize() + pixels, smallestText, largestText));
    setFont(letters);
}

QTextDocument *HelpBrowser::makePaperCopy()
{
    // With the browser as parent, the copy asks it for the pictures.
    QTextDocument *copy = document()->clone(this);
    QFont letters = font();
    letters.setPointSizeF(paperText);
    copy->setDefaultFont(letters);
    return copy;
}
