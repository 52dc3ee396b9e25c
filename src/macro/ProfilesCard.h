// The card with the macros and the buttons that add and delete one.
#pragma once

#include <QStringList>
#include <cstdint>

#include "controls/HeadedCard.h"

namespace lumo {

class IconButton;
class ProfileList;
class PushButton;

/// Main thread.
class ProfilesCard final : public HeadedCard {
    Q_OBJECT

public:
    ProfilesCard(const QStringList& names, QWidget* parent);

    void setMacros(const QStringList& names, std::int64_t selected);

signals:
    void chosen(std::int64_t index);
    void added();
    void deleted();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    ProfileList* m_list;
    IconButton* m_add;
    PushButton* m_delete;
};

}  // namespace lumo
