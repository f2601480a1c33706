#include "plugin/modulelifetime.h"

#include "draw/labelfont.h"
#include "host/api/wantedlocales.h"
#include "host/gdiplus.h"
#include "plugin/accessibility.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTranslator>

#include <algorithm>
#include <memory>
#include <vector>

// Resources of a static library are registered by name, from outside any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(intelligentrules);
    Q_INIT_RESOURCE(intelligentrulestranslations);
}

namespace IntelligentRulesUI
{

namespace
{

std::vector<ULONG_PTR> g_gdiplusTokens; ///< one for each start that has not been ended
std::unique_ptr<QTranslator> g_translator;

/// Files beside the plug-in come before what is built in, as with the skin.
bool loadTranslation(QTranslator& translator)
{
    QStringList folders = QCoreApplication::libraryPaths();
    folders.append(QStringLiteral(":"));
    const QList<QLocale> wanted = wantedLocales();
    return std::any_of(wanted.cbegin(), wanted.cend(), [&](const QLocale& locale) {
        return std::any_of(folders.cbegin(), folders.cend(), [&](const QString& folder) {
            return translator.load(locale, QString::fromLatin1(kModuleName), QStringLiteral("_"),
                                   folder + QStringLiteral("/translations"));
        });
    });
}

void installTranslation()
{
    if (g_translator)
        return;
    auto translator = std::make_unique<QTranslator>();
    if (loadTranslation(*translator) && QCoreApplication::installTranslator(translator.get()))
        g_translator = std::move(translator);
}

} // namespace

void startModule()
{
    initResources();
    installTranslation();
    Accessibility::start();
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok)
        g_gdiplusTokens.push_back(token);
}

void endModule()
{
    Accessibility::end();
    LabelFont::release();
    g_translator.reset();
    // A host may end what it never started, or ended already.
    if (g_gdiplusTokens.empty())
        return;
    Gdiplus::GdiplusShutdown(g_gdiplusTokens.back());
    g_gdiplusTokens.pop_back();
}

} // namespace IntelligentRulesUI
