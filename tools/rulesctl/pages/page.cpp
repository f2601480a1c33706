#include "tools/rulesctl/pages/page.h"

#include "tools/rulesctl/render/xmltext.h"

#include <QCryptographicHash>

namespace
{

const char* const kStyle = R"(
:root { color-scheme: light dark; --ground: #f4f5f7; --card: #fff; --ink: #1b1f24;
  --soft: #57606a; --line: #d5dae0; --good: #1a7f37; --bad: #b3261e; --warn: #8a5a00;
  --mark: #0a63c9; }
@media (prefers-color-scheme: dark) { :root { --ground: #14171a; --card: #1e2226;
  --ink: #e6e8eb; --soft: #a2abb5; --line: #363d45; --good: #57c971; --bad: #ff8a80;
  --warn: #e3b341; --mark: #6db3ff; } }
* { box-sizing: border-box; }
body { margin: 0; padding: 1.5rem; background: var(--ground); color: var(--ink);
  font: 15px/1.45 system-ui, sans-serif; }
h1 { font-size: 1.4rem; margin: 0 0 .25rem; overflow-wrap: anywhere; }
h2 { font-size: 1rem; margin: 0; overflow-wrap: anywhere; }
p { margin: 0; }
svg { display: block; width: 100%; height: auto; background: #000; }
.soft { color: var(--soft); }
)";

} // namespace

Page::Page(const QString& title, const QByteArray& style, const QByteArray& script)
    : m_title(title), m_style(kStyle + style), m_script(script)
{
}

void Page::addText(const char* element, const QString& text, const QByteArray& attributes)
{
    const QByteArray name(element);
    m_body += '<' + name + (attributes.isEmpty() ? QByteArray() : ' ' + attributes) + '>' +
              XmlText::escaped(text).toUtf8() + "</" + name + ">\n";
}

/// Browsers are told to run this script alone, and to load nothing.
QByteArray Page::html() const
{
    const QByteArray digest =
        QCryptographicHash::hash(m_script, QCryptographicHash::Sha256).toBase64();
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
           "img-src data:; style-src 'unsafe-inline'; script-src 'sha256-" +
           digest + "'\">\n<meta name=\"viewport\" content=\"width=device-width\">\n<title>" +
           XmlText::escaped(m_title).toUtf8() + "</title>\n<style>" + m_style +
           "</style>\n</head>\n<body>\n" + m_body + "<script>" + m_script +
           "</script>\n</body>\n</html>\n";
}
