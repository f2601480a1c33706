#include "host/api/cuipluginmessage.h"
#include "host/api/iabstractui.h"
#include "host/api/iclientuipluginapi.h"
#include "tests/support/clientwindow.h"

#include <QPluginLoader>
#include <QTextStream>

#include <memory>

using namespace SampleDocuments;

/// A client that ends the module when its QApplication is gone already.
int main(int argc, char* argv[])
{
    QPluginLoader loader(RULES_BIN_DIR "/IntelligentRulesUI.so");
    auto application = std::make_unique<QApplication>(argc, argv);
    auto* const plugin = qobject_cast<KQPluginAPI::IClientUIPluginAPI*>(loader.instance());
    plugin->Init();
    auto* const handle = plugin->GetUI()->CreateWidget();
    static QWidget* const ownerless = handle->GetWidget(nullptr); // left to the process
    ownerless->show();
    handle->OnPluginMessage(ClientWindow::OpenRules, R"({"pluginWidgetID": "IntelligentRulesUI1"})",
                            block(R"("channelId": "C1")", config(rule("Gate"))));
    const bool isLoaded = ownerless->findChild<QWidget*>("rules");
    application.reset();
    plugin->UnInit();
    const bool isEnded = !plugin->GetUI();
    QTextStream(stdout) << "loaded " << isLoaded << ", ended " << isEnded << '\n';
    return isLoaded && isEnded ? 0 : 1;
}
