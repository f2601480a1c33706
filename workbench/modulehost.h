#pragma once

#include "workbench/messagerecord.h"

#include <QObject>
#include <QPluginLoader>
#include <QPointer>

namespace KQPluginAPI
{
class IAbstractWidget;
class IClientUIPluginAPI;
} // namespace KQPluginAPI
namespace UICommonMdl
{
struct PluginMsg_Param;
}
class QWidget;

/**
 * Loads the module's plug-in and speaks with it as a client does: through the plug-in interfaces
 * and the message bus only. Ends and unloads the plug-in when it is destroyed; the window must be
 * gone by then.
 */
class ModuleHost : public QObject
{
    Q_OBJECT

public:
    explicit ModuleHost(QObject* parent = nullptr);
    ~ModuleHost() override;

    /// Takes @p plugin, which stays the caller's, in place of one from a file.
    void use(KQPluginAPI::IClientUIPluginAPI& plugin);
    /// Loads @p pluginFile, or the host's own when empty; false with errorText().
    bool load(const QString& pluginFile);
    const QString& errorText() const { return m_errorText; }

    /// The rules window, a child of @p parent.
    QWidget* createWindow(QWidget* parent);
    QString widgetId() const;

    /// Sends the parameter block that loads a channel's rules.
    bool open(const QString& parameterBlock);
    /// Asks whether a drawing is unfinished; the answer comes as a message.
    bool queryUnfinishedDraw(const QString& algorithmId, const QString& channelId);
    /// Empties the window.
    bool close();

signals:
    void sgnMessage(const MessageRecord& message);

private:
    bool loadFile(const QString& pluginFile);
    bool send(int id, const QString& p1, const QString& p2);
    void receive(const UICommonMdl::PluginMsg_Param& message);

    QPluginLoader m_loader;
    KQPluginAPI::IClientUIPluginAPI* m_plugin = nullptr; ///< owned by the loader or the caller
    KQPluginAPI::IAbstractWidget* m_widget = nullptr;    ///< owned by the plug-in's factory
    QString m_errorText;
};
