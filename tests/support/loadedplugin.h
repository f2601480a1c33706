#pragma once

#include "host/api/iabstractui.h"
#include "host/api/iclientuipluginapi.h"
#include "tests/support/rulestest.h"

#include <QPluginLoader>

/// The built plug-in, as a client has it.
struct LoadedPlugin {
    /// Anew where it is loaded already: nothing of the plug-in that went may be called any more.
    void load()
    {
        if (loader.isLoaded()) {
            api->UnInit();
            QVERIFY2(loader.unload(), qPrintable(loader.errorString()));
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        api = qobject_cast<KQPluginAPI::IClientUIPluginAPI*>(loader.instance());
        QVERIFY2(api, qPrintable(loader.errorString()));
        QVERIFY(!api->GetUI());
        api->Init();
    }
    KQPluginAPI::IAbstractWidget* widget() const { return api->GetUI()->CreateWidget(); }
    KQPluginAPI::IClientUIPluginAPI* operator->() const { return api; }

    QPluginLoader loader{RULES_BIN_DIR "/IntelligentRulesUI.so"};
    KQPluginAPI::IClientUIPluginAPI* api = nullptr;
};
