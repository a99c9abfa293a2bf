#include "events/EventMail.h"

#include "app/log/Module_Log.h"
#include "platform/clsOSInfo.h"
#include "support/TimeSeconds.h"

using namespace Qt::StringLiterals;

namespace {

// %1 title, %2 font, %3 paragraphs. Mail programs know this frame.
constexpr char16_t kPage[] = uR"page(<html>
<head>
<meta http-equiv=Content-Type content="text/html; charset=big5">
<meta name=Generator content="Microsoft Word 11 (filtered)">
<title>%1</title>
<style>
<!--
@font-face
{font-family:%2;
 panose-1:2 2 3 0 0 0 0 0 0 0;}
@font-face
 {font-family:"\@%2";
 panose-1:2 2 3 0 0 0 0 0 0 0;}
p.MsoNormal , li.MsoNormal, div.MsoNormal
 {margin:0cm;
 margin-bottom:.0001pt;
 font-size:12.0pt;
 font-family:"Times New Roman";}
 @page Section1
 {size:595.3pt 841.9pt;
 margin:72.0pt 90.0pt 72.0pt 90.0pt;
 layout-grid:18.0pt;}
div.Section1 
 {page:Section1;}
-->
</style>
</head>
<body lang=ZH-TW style='text-justify-trim:punctuation'>
<div class=Section1 style='layout-grid:18.0pt'>
%3
</div>
</body>
</html>
)page";

QString Page(const QString& title, const QString& font, const QStringList& paragraphs)
{
    QString page = QString::fromUtf16(kPage).arg(title, font, paragraphs.join(u'\n'));
    return page.replace(u'\n', u"\r\n"_s);
}

QString Bold(const QString& text)
{
    return u"<p class=MsoNormal><b>"_s + text + u"</b></p>";
}

} // namespace

void UseMailServer(SMTPClient& client, const ListenServerRec& server)
{
    client.SendFrom = LocalPart(server.sMailFrom) + u'<' + server.sMailFrom + u'>';
    client.ServerName = server.sMailServer;
    client.ServerPort = QString::number(server.lMailPort);
    client.UserName = server.sMailUser;
    client.Password = server.sMailPassword;
    client.HTMLCharset = u"UTF-8"_s;
}

QString LocalPart(const QString& address)
{
    return address.section(u'@', 0, 0);
}

QString EventMailPage(const QString& text, qint32 seconds, const QString& user)
{
    const QString when = SecondsToTime(seconds).toString(u"yyyy/M/d h:m:s");
    return Page(u"This is event mail"_s, u"arial"_s,
                {Bold(u"This is event mail "_s), u"<br>"_s, Bold(text.toHtmlEscaped()), u"<br>"_s,
                 Bold(u"Application Name : "_s + kProgramTitle), Bold(u"Server IP : "_s + LocalIPAddress()),
                 Bold(u"Trigger timestamp is "_s + when), Bold(u"The login user is "_s + user.toHtmlEscaped()),
                 u"<p class=MsoNormal></p>"_s});
}

QString TestMailPage()
{
    return Page(u"This is test HTML mail"_s, u"Verdana"_s,
                {Bold(u"<span lang=EN-US>This is a test Mail from application of "_s + kProgramTitle + u"</span>"),
                 u"<p class=MsoNormal></p>"_s,
                 u"<p class=MsoNormal>["_s + CMS_Core + u"] " + LocalIPAddress() + u"</p>"});
}
