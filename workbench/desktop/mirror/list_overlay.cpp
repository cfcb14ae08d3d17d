#include "workbench/desktop/mirror/list_overlay.h"

#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/windows/window_system.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kRowHeight = 20;  // pixels
constexpr int kSeparatorHeight = 5;
constexpr int kPicture = 16;
constexpr int kMostRows = 14;

}  // namespace

ListOverlay::ListOverlay(Stage& stage) : m_stage(stage) {
    qApp->installEventFilter(this);
}

ListOverlay::~ListOverlay() {
    hide();
}

ComboWidget* ListOverlay::openCombo() const {
    const Window* const window = m_stage.windows.find(m_field);
    auto* combo = window == nullptr ? nullptr : dynamic_cast<ComboWidget*>(window->widget.get());
    return combo != nullptr && combo->isOpen() ? combo : nullptr;
}

void ListOverlay::update(HWND window, MirrorWidget* field) {
    const Window* const changed = m_stage.windows.find(window);
    auto* combo = changed == nullptr ? nullptr : dynamic_cast<ComboWidget*>(changed->widget.get());
    if (combo != nullptr && combo->isOpen() && field != nullptr) {
        m_field = window;
        show(*combo, *field);
    } else if (window == m_field) {
        hide();
    }
}

void ListOverlay::show(const ComboWidget& combo, MirrorWidget& field) {
    QWidget* const top = field.window();
    if (m_list == nullptr || m_list->parentWidget() != top) {
        delete m_list.data();
        m_list = new QListWidget(top);
        m_list->setFocusPolicy(Qt::NoFocus);
        m_list->setMouseTracking(true);
        m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_list->setAccessibleName(field.accessibleName());
        restyle();
        QObject::connect(m_list, &QListWidget::itemClicked, this,
                         [this](const QListWidgetItem* item) { choose(m_list->row(item)); });
        QObject::connect(m_list, &QListWidget::itemEntered, this,
                         [this](QListWidgetItem* item) { m_list->setCurrentItem(item); });
    }
    fillList(combo);
    int height = 2;
    for (int row = 0; row < std::min(combo.count(), kMostRows); ++row)
        height += m_list->item(row)->sizeHint().height();
    const QPoint below = field.mapTo(top, QPoint(0, field.height()));
    const bool fits = below.y() + height <= top->height();
    const int y = fits ? below.y() : std::max(0, below.y() - field.height() - height);
    m_list->setGeometry(below.x(), y, field.width(), std::min(height, top->height() - y));
    m_list->setCurrentRow(combo.highlighted());
    m_list->show();
    m_list->raise();
}

void ListOverlay::fillList(const ComboWidget& combo) {
    m_list->clear();
    for (int row = 0; row < combo.count(); ++row) {
        const QRUI_COMBO_CTRL_ITEM& entry = *combo.entry(row);
        auto* item = new QListWidgetItem(toQt(entry.text), m_list);
        item->setSizeHint({0, entry.separator != 0 ? kSeparatorHeight : kRowHeight});
        if (entry.separator != 0) {
            item->setFlags(Qt::NoItemFlags);
            item->setBackground(m_stage.look->line);
        } else if (entry.image != nullptr) {
            item->setIcon(QIcon(
                m_stage.pictures.fit(entry.image, nullptr, kPicture, m_list->devicePixelRatioF())));
        }
    }
}

void ListOverlay::choose(int row) {
    m_stage.pump.act([this, row] {
        ComboWidget* const combo = openCombo();
        if (combo != nullptr)
            combo->choose(*m_stage.windows.find(m_field), row);
    });
}

void ListOverlay::hide() {
    m_field = nullptr;
    if (m_list != nullptr)
        m_list->hide();
}

void ListOverlay::restyle() {
    if (m_list == nullptr)
        return;
    QPalette colours = m_list->palette();
    colours.setColor(QPalette::Base, m_stage.look->field);
    colours.setColor(QPalette::Text, m_stage.look->fieldText);
    colours.setColor(QPalette::Highlight, m_stage.look->accent);
    colours.setColor(QPalette::HighlightedText, m_stage.look->accentText);
    m_list->setPalette(colours);
    m_list->setFont(fontOf(nullptr));
    m_list->setFrameShape(QFrame::Box);
}

/// A press elsewhere closes the list. One on the field itself closes it on its own.
bool ListOverlay::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseButtonPress || openCombo() == nullptr)
        return false;
    const auto* pressed = qobject_cast<QWidget*>(watched);
    const auto* mirror = dynamic_cast<const MirrorWidget*>(pressed);
    const bool isInside = pressed == nullptr || m_list == nullptr || pressed == m_list ||
                          m_list->isAncestorOf(pressed) ||
                          (mirror != nullptr && mirror->handle() == m_field);
    if (!isInside)
        m_stage.pump.act([this] {
            if (ComboWidget* const combo = openCombo())
                combo->close(*m_stage.windows.find(m_field));
        });
    return false;
}

}  // namespace workbench::desktop
