#include "plugin/modulelifetime.h"

#include "draw/labelfont.h"
#include "host/gdiplus.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <memory>
#include <utility>

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

ULONG_PTR g_gdiplusToken = 0;
std::unique_ptr<QTranslator> g_translator;

void installTranslation()
{
    if (g_translator)
        return;
    auto translator = std::make_unique<QTranslator>();
    const bool loaded = translator->load(QLocale(), QString::fromLatin1(kModuleName),
                                         QStringLiteral("_"), QStringLiteral(":/translations"));
    if (loaded && QCoreApplication::installTranslator(translator.get()))
        g_translator = std::move(translator);
}

} // namespace

void startModule()
{
    initResources();
    installTranslation();
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&g_gdiplusToken, &input, nullptr);
}

void endModule()
{
    LabelFont::release();
    // A host may end what it never started, or ended already.
    if (g_gdiplusToken != 0)
        Gdiplus::GdiplusShutdown(std::exchange(g_gdiplusToken, 0));
    g_translator.reset();
}

} // namespace IntelligentRulesUI
