// The top of the window: the product's mark and name, the profiles, and how the keyboard is connected.
#pragma once

#include <QWidget>
#include <cstdint>
#include <string_view>

#include "app/BrandButton.h"

class QAction;

namespace lumo {

class ConnectionDot;
class ProfileBar;
class TextLine;

/// Main thread. A left press that no control takes goes on to the window.
class HeaderBar final : public QWidget {
    Q_OBJECT

public:
    static int barHeight();  // the divider included

    /// `quit` is the one item of the program's menu and outlives this bar; null where the system shows that menu.
    HeaderBar(QAction* quit, QWidget* parent);

    void setActiveProfile(std::int64_t number);
    void setConnection(bool isConnected, std::string_view connectionType);

signals:
    void profileChosen(std::int64_t number);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeRightGroup();

    BrandMark m_mark;
    BrandButton* m_brand;
    TextLine* m_title;
    ProfileBar* m_profiles;
    ConnectionDot* m_dot;
    TextLine* m_connection;
    int m_separatorX = 0;
};

}  // namespace lumo
