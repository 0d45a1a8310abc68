#include "shell/EmptyListHint.h"

#include <orda_base/SearchBox.h>
#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>

#include <QEvent>
#include <QTableWidget>

#include <chrono>

namespace orda_batchCfg {

namespace {

using namespace std::chrono_literals;

constexpr auto delay = 50ms;
constexpr int edge = 24;

bool hasVisibleRow(const QTableWidget *table)
{
    for (int row = 0; row < table->rowCount(); ++row)
        if (!table->isRowHidden(row))
            return true;
    return false;
}

} // namespace

EmptyListHint::EmptyListHint(QTableWidget *table, const orda_base::SearchBox *searchBox)
    : QLabel(table->viewport())
    , m_table(table)
    , m_searchBox(searchBox)
    , m_description(table->accessibleDescription())
{
    setObjectName(QStringLiteral("emptyListHint"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(edge);
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    table->viewport()->installEventFilter(this);

    m_soon.setSingleShot(true);
    m_soon.setInterval(delay);
    connect(&m_soon, &QTimer::timeout, this, &EmptyListHint::follow);
    const auto followSoon = [this] {
        if (!m_soon.isActive())
            m_soon.start();
    };
    connect(table->model(), &QAbstractItemModel::rowsInserted, this, followSoon);
    connect(table->model(), &QAbstractItemModel::rowsRemoved, this, followSoon);
    connect(searchBox, &orda_base::SearchBox::signalSearchByKeyword, this, followSoon);
    const auto &store = orda_data::DataSignals::instance();
    connect(&store, &orda_data::DataSignals::signalDevStatusChanged, this, followSoon);
    connect(&store, &orda_data::DataSignals::signalUpdateDevs, this, followSoon);
    connect(&store, &orda_data::DataSignals::signalDeleteDevs, this, followSoon);
    follow();
}

bool EmptyListHint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QLabel::eventFilter(watched, event);
}

void EmptyListHint::follow()
{
    const bool isEmpty = !hasVisibleRow(m_table);
    if (isEmpty) {
        setText(reason());
        setGeometry(parentWidget()->rect()); // scrolling the list has moved it along
    }
    setVisible(isEmpty);
    m_table->setAccessibleDescription(isEmpty ? text() : m_description);
}

QString EmptyListHint::reason() const
{
    const auto &store = orda_data::DevsMgrData::instance();
    if (m_table->rowCount() > 0 && !m_searchBox->text().isEmpty())
        return tr("No device in the list matches the search.");
    if (store.getAllDevs(false).isEmpty())
        return tr("There are no devices yet.");
    if (store.getAllDevs(true).isEmpty())
        return tr("No device is online. Devices appear here as soon as they are.");
    return tr(
        "None of the devices online can be configured from here: it takes a camera or a recorder that is "
        "reached directly, with an IP address, a password that is not weak, or the right to it at the cloud service.");
}

} // namespace orda_batchCfg
