// One permission on the settings page: what it is for, whether it is granted, and the ways to change that.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string_view>

#include "controls/Accessible.h"

namespace lumo {

class IconButton;
class PushButton;
class StatusBadge;
class TextBlock;
class TextLine;

/// Main thread. A group named by its title.
class PermissionRow final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    static int rowHeight();

    /// `icon` is the name of a symbol.
    PermissionRow(QString icon, std::string_view title, std::string_view subtitle, bool isAuthorized,
                  const std::function<void()>& onRequest, const std::function<void()>& onOpenSettings, QWidget* parent);

    /// What is granted needs no request.
    void setAuthorized(bool isAuthorized);

    QAccessibleInterface* makeAccessible() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void place();
    void placeHeading(int top, int width);

    QString m_icon;
    TextLine* m_title;
    StatusBadge* m_badge;
    TextBlock* m_subtitle;
    bool m_isAuthorized = false;
    PushButton* m_request;
    IconButton* m_gear;
};

}  // namespace lumo
