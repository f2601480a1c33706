#pragma once

#include "host/api/kqhostexport.h"

#include <QIcon>
#include <QString>
#include <QVariant>

#include <string>

class QWidget;

namespace KQPluginAPI
{

/// One window of a plug-in as the host sees it. The order of the operations is binary interface.
class KQHOST_EXPORT IAbstractWidget
{
public:
    virtual ~IAbstractWidget();

    virtual std::string GetWidgetID() = 0;
    /// The window, made on the first call; it belongs to @p parent.
    virtual QWidget* GetWidget(QWidget* parent) = 0;
    virtual QString GetTitle() = 0;
    virtual QIcon GetIcon() = 0;
    virtual QString GetDetail() = 0;
    virtual QString GetSecondTitle() = 0;
    virtual QIcon GetSecondIcon() = 0;
    virtual QString GetThirdTitle() = 0;
    virtual QIcon GetThirdIcon() = 0;
    virtual QVariant GetUserData() = 0;
    /// A message from the host; false when its parameters cannot be read.
    virtual bool OnPluginMessage(int id, const QVariant& p1, const QVariant& p2) = 0;
};

} // namespace KQPluginAPI
