// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/web/html_wrapper.h"

#include "platform/files.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr char32_t unknown = 0xFFFD; ///< for what is no character

const QByteArray openScript = R"(<SCRIPT LANGUAGE="JavaScript"type=text/javascript>)";

/// Control characters show nothing, and their numbers mean other letters to a browser.
bool isShown(char32_t character) { return character >= 0xA0 || (character >= 0x20 && character < 0x7F); }

/// The names of what would be markup.
QStringView entity(char32_t character)
{
    switch (character) {
    case U'&':
        return u"&amp;";
    case U'<':
        return u"&lt;";
    case U'>':
        return u"&gt;";
    case U'"':
        return u"&quot;";
    case U'\'':
        return u"&#39;";
    default:
        return {};
    }
}

QString pictureBlock(const PagePicture &picture, const QString &id)
{
    return u"<div style=\"z-index: 0; position: absolute;  top: %1; left: %2;\"%3>"_s.arg(picture.top)
        .arg(picture.left)
        .arg(id);
}

} // namespace

QString htmlText(const QString &text)
{
    QString html;
    html.reserve(text.size());
    for (const uint code : text.toUcs4()) {
        const char32_t character = code;
        if (const QStringView name = entity(character); !name.isEmpty())
            html += name;
        else if (character == U'\t')
            html += u' ';
        else if (character < 0x7F && isShown(character))
            html += QChar(static_cast<char16_t>(character));
        else
            html += u"&#%1;"_s.arg(uint(isShown(character) ? character : unknown));
    }
    return html;
}

QString htmlColour(Colour colour)
{
    const Colour turned = (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
    return u'#' + QString::number(turned, 16).toUpper().rightJustified(6, u'0');
}

void CHTMLWrapper::line(const QByteArray &html)
{
    if (open_)
        page_ += html + "\r\n";
}

void CHTMLWrapper::line(const QString &html) { line(html.toLatin1()); }

void CHTMLWrapper::element(const QByteArray &name, const QString &text)
{
    line('<' + name + '>' + htmlText(text).toLatin1() + "</" + name + '>');
}

// The page ----------------------------------------------------------------------------------------------

void CHTMLWrapper::OpenHTMLDoc()
{
    page_.clear();
    open_ = true;
    line(QByteArray("<!doctype html public \"-//w3c//dtd html 3.2//en\">"));
    line(QByteArray(" "));
    line(QByteArray("<HTML>"));
}

void CHTMLWrapper::OpenHTMLHeader(const QString &title)
{
    line(QByteArray());
    line(QByteArray("<HEAD>"));
    element("TITLE", title);
    line(QByteArray());
}

void CHTMLWrapper::CloseHTMLHeader() { line(QByteArray("</HEAD>")); }

void CHTMLWrapper::OpenHTMLBody(Colour back, Colour text, const std::optional<PagePicture> &picture)
{
    line(u"<BODY bgcolor=%1 text=%2>"_s.arg(htmlColour(back), htmlColour(text)));
    if (!picture)
        return;
    line(QByteArray());
    line(pictureBlock(*picture, u" id = \"BGPIC\""_s));
    line(u"<img src=\""_s + htmlText(picture->address) + u"\" border=0>"_s);
    line(QByteArray("</div>"));
    line(QByteArray());
}

void CHTMLWrapper::CloseHTMLBody(const QString &script, const QString &call)
{
    line(openScript);
    line(script);
    line(QByteArray("</SCRIPT>"));
    if (!call.isEmpty()) {
        line(openScript);
        line(QByteArray("<!--"));
        line(call);
        line(QByteArray("//-->"));
        line(QByteArray("</SCRIPT>"));
        line(QByteArray());
    }
    CloseHTMLBody2();
    line(QByteArray());
}

void CHTMLWrapper::CloseHTMLBody2() { line(QByteArray("</BODY>")); }

void CHTMLWrapper::CloseHTMLDoc()
{
    line(QByteArray("</HTML>"));
    if (std::exchange(open_, false))
        writeFileAtomically(fileName_, std::exchange(page_, {}));
}

// What stands on it ---------------------------------------------------------------------------------------

void CHTMLWrapper::InsertBreak() { line(QByteArray("<BR>")); }

void CHTMLWrapper::InsertComment(const QString &text)
{
    // Two dashes may end a comment.
    line(u"<!-- "_s + htmlText(text).replace(u"--"_s, u"- -"_s) + u" -->"_s);
}

void CHTMLWrapper::InsertHorizontalRule() { line(QByteArray("<HR>")); }

void CHTMLWrapper::InsertJavaScript(const QString &code, const QString &noScript)
{
    line(QByteArray("<SCRIPT><!--"));
    line(code);
    line(QByteArray("//--></SCRIPT>"));
    line(QByteArray("<NOSCRIPT>"));
    line(htmlText(noScript));
    line(QByteArray("</NOSCRIPT>"));
}

void CHTMLWrapper::InsertLink(const QString &address, const QString &text, bool isMail)
{
    line(u"<A HREF=\"%1%2\">%3</A>"_s.arg(isMail ? u"mailto:"_s : QString(), htmlText(address),
                                          htmlText(text)));
}

void CHTMLWrapper::InsertPicture(const QString &address)
{
    line(pictureBlock({address, 70, 10}, {}));
    line(u"<img src=\""_s + htmlText(address) + u"\" width=546 height=500 border=0>"_s);
    line(QByteArray("</div>"));
}

void CHTMLWrapper::StartTable(int border) { line("<TABLE BORDER=" + QByteArray::number(border) + '>'); }

void CHTMLWrapper::StartTableRow() { line(QByteArray("<TR>")); }

void CHTMLWrapper::EndTableRow() { line(QByteArray("</TR>")); }

void CHTMLWrapper::EndTable() { line(QByteArray("</TABLE>")); }

void CHTMLWrapper::WriteMagnet(const QString &html) { line(html); }
