// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/web/html_wrapper.h"

#include "platform/files.h"

#include <utility>

void CHTMLWrapper::OpenHTMLDoc(qsizetype expected)
{
    page_.clear();
    page_.reserve(static_cast<std::size_t>(expected));
    open_ = true;
    line("<!doctype html public \"-//w3c//dtd html 3.2//en\">");
    line(" ");
    line("<HTML>");
}

void CHTMLWrapper::OpenHTMLHeader(const QString &title)
{
    line();
    line("<HEAD>");
    line("<TITLE>", title, "</TITLE>");
    line();
}

void CHTMLWrapper::OpenHTMLBody(Colour back, Colour text, const std::optional<PagePicture> &picture)
{
    line("<BODY bgcolor=", html::colour(back), " text=", html::colour(text), ">");
    if (!picture)
        return;
    line();
    blockOf(*picture, " id = \"BGPIC\"", {});
    line();
}

void CHTMLWrapper::CloseHTMLBody(const QByteArray &script, const QByteArray &call)
{
    openScript();
    line(script);
    line("</SCRIPT>");
    if (!call.isEmpty()) {
        openScript();
        line("<!--");
        line(call);
        line("//-->");
        line("</SCRIPT>");
        line();
    }
    CloseHTMLBody2();
    line();
}

void CHTMLWrapper::CloseHTMLDoc()
{
    line("</HTML>");
    if (!std::exchange(open_, false))
        return;
    const std::string page = std::exchange(page_, {});
    writeFileAtomically(fileName_, QByteArray::fromRawData(page.data(), static_cast<qsizetype>(page.size())));
}

void CHTMLWrapper::InsertComment(const QString &text)
{
    // Two dashes may end a comment.
    line("<!-- ", html::of(text).replace("--", "- -"), " -->");
}

void CHTMLWrapper::InsertJavaScript(const QByteArray &code, const QString &noScript)
{
    line("<SCRIPT><!--");
    line(code);
    line("//--></SCRIPT>");
    line("<NOSCRIPT>");
    line(noScript);
    line("</NOSCRIPT>");
}

void CHTMLWrapper::InsertLink(const QString &address, const QString &text, bool isMail)
{
    line("<A HREF=\"", QByteArray(isMail ? "mailto:" : ""), address, "\">", text, "</A>");
}

void CHTMLWrapper::InsertPicture(const QString &address)
{
    blockOf({address, 70, 10}, {}, "width=546 height=500 ");
}

void CHTMLWrapper::blockOf(const PagePicture &picture, const QByteArray &id, const QByteArray &size)
{
    line("<div style=\"z-index: 0; position: absolute;  top: ", picture.top, "; left: ", picture.left, ";\"",
         id, ">");
    line("<img src=\"", picture.address, "\" ", size, "border=0>");
    line("</div>");
}

/// No blank before "type": browsers do not mind.
void CHTMLWrapper::openScript() { line("<SCRIPT LANGUAGE=\"JavaScript\"type=text/javascript>"); }
