#pragma once

#include "host/api/iabstractwidget.h"

#include <QObject>
#include <QPointer>

namespace CommonData
{
class CInterfaceSetManager;
}

namespace IntelligentRulesUI
{

class CIntelligentRulesCtrl;

/**
 * The host's handle of one rules window: gives out the window, takes the host's messages.
 *
 * The window belongs to the parent that the host supplies. When the handle goes, such a window
 * stays, empty; only one that never had a parent is deleted here.
 */
class CIntelligentRulesWidget : public QObject, public KQPluginAPI::IAbstractWidget
{
    Q_OBJECT

public:
    /// @p widgetsBefore: how many widgets the factory made before this one.
    CIntelligentRulesWidget(CommonData::CInterfaceSetManager* manager, int widgetsBefore);
    ~CIntelligentRulesWidget() override;

    std::string GetWidgetID() override;
    /// The window, made by the first call as a child of @p parent.
    QWidget* GetWidget(QWidget* parent) override;
    QString GetTitle() override { return tr("IntelligentRules"); }
    QIcon GetIcon() override { return {}; }
    QString GetDetail() override { return tr("IntelligentRulesDetail"); }
    QString GetSecondTitle() override { return tr("IntelligentRules"); }
    QIcon GetSecondIcon() override { return {}; }
    QString GetThirdTitle() override { return tr("IntelligentRules"); }
    QIcon GetThirdIcon() override { return {}; }
    QVariant GetUserData() override { return {}; }
    /// Handles a message of the host; false when its JSON cannot be read.
    bool OnPluginMessage(int id, const QVariant& p1, const QVariant& p2) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString widgetId() const;
    bool openRules(const QVariant& p1, const QVariant& p2);
    bool queryUnfinishedDraw(const QVariant& p1, const QVariant& p2);
    void replyUnfinishedDraw(const QString& channel, const QString& algorithm);

    CommonData::CInterfaceSetManager* m_manager; ///< not owned
    QPointer<CIntelligentRulesCtrl> m_ctrl;      ///< null from the beginning of its end
    int m_index;
    bool m_hadOwner = false; ///< the host may own a window that it took out of its parent again
};

} // namespace IntelligentRulesUI
