#include "batch/DeviceSelection.h"

#include "batch/DeviceIndex.h"
#include "batch/InputFile.h"
#include "run/DevEligibility.h"

#include <vms_client_sdk/ForeignText.h>

#include <QCryptographicHash>
#include <QHostAddress>
#include <QRegularExpression>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace orda_batch {

namespace {

constexpr qint64 maxFileBytes = 16 << 20;
constexpr int maxNamed = 5; // in one message

constexpr int kindCamera = 1;
constexpr int kindRecorder = 6;

/// "*" for any text, "?" for one character, "[a-z]" for one of these, "[!a-z]" for any other. Qt's own conversion takes
/// "/" for the end of a directory's name.
QRegularExpression globExpression(const QString &glob)
{
    QString expression;
    for (int i = 0; i < glob.size(); ++i) {
        const QChar c = glob.at(i);
        const int setEnd = c == QLatin1Char('[') ? glob.indexOf(QLatin1Char(']'), i + 2) : -1;
        if (c == QLatin1Char('*')) {
            expression += QLatin1String(".*");
        } else if (c == QLatin1Char('?')) {
            expression += QLatin1Char('.');
        } else if (setEnd > 0) {
            const bool isOther = glob.at(i + 1) == QLatin1Char('!');
            QString set = glob.mid(i + (isOther ? 2 : 1), setEnd - i - (isOther ? 2 : 1));
            set.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('['), QLatin1String("\\["));
            expression += (isOther ? QLatin1String("[^") : QLatin1String("[")) + set + QLatin1Char(']');
            i = setEnd;
        } else {
            expression += QRegularExpression::escape(QString(c));
        }
    }
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::DotMatchesEverythingOption);
}

/// An address, or addresses by "10.1.0.0/16". @return length -1: it is neither
QPair<QHostAddress, int> subnetOf(const QString &text)
{
    const QString address = text.section(QLatin1Char('/'), 0, 0);
    // "10.1" is valid too, but not what people expect.
    if (QHostAddress(address).toString() != address
        || QHostAddress(address).protocol() != QAbstractSocket::IPv4Protocol)
        return {QHostAddress(), -1};
    return QHostAddress::parseSubnet(text);
}

bool takePrefix(QString *text, QLatin1String prefix)
{
    const bool has = text->startsWith(prefix);
    if (has)
        text->remove(0, prefix.size());
    return has;
}

} // namespace

/// @param place where a file has it, with a blank before; empty on the command line
/// @return what is wrong
QString DeviceSelection::add(const QString &written, const QString &place, bool isExcluded)
{
    Term term;
    term.text = written;
    term.shown = written + place;
    term.isExcluded = takePrefix(&term.text, QLatin1String("not:"));
    if (term.isExcluded && isExcluded)
        return tr(R"("%1": "not:" stands before its file already)").arg(term.shown);
    term.isExcluded = term.isExcluded || isExcluded;
    if (term.text.startsWith(QLatin1Char('@')) && term.text.size() > 1)
        return place.isEmpty() ? addFile(term.text.mid(1), term.isExcluded)
                               : tr(R"("%1": a file must not name another one)").arg(term.shown);
    static constexpr std::array<std::pair<const char *, Term::Kind>, 5> withText{{{"name=", Term::Name},
                                                                                  {"ip=", Term::Address},
                                                                                  {"kind=", Term::DeviceKind},
                                                                                  {"group=", Term::Group},
                                                                                  {"failed:", Term::FailedIn}}};
    if (term.text == QLatin1String("all"))
        term.kind = Term::All;
    else if (term.text == QLatin1String("offered"))
        term.kind = Term::Offered;
    else
        for (const auto &[prefix, kind] : withText)
            if (takePrefix(&term.text, QLatin1String(prefix))) {
                term.kind = kind;
                break;
            }
    if (term.text.isEmpty() || term.text == QLatin1String("@"))
        return term.shown.isEmpty() ? tr("a term of a selection must not be empty")
                                    : tr(R"("%1": something must follow)").arg(term.shown);
    if (term.kind == Term::Name && !globExpression(term.text).isValid())
        return tr(R"("%1": is no pattern; "*", "?" and "[a-z]" may stand for characters)").arg(term.shown);
    if (term.kind == Term::Address && subnetOf(term.text).second < 0)
        return tr(R"("%1": must be an address such as 10.1.2.3, or several such as 10.1.0.0/16)").arg(term.shown);
    if (term.kind == Term::DeviceKind && term.text != QLatin1String("camera") && term.text != QLatin1String("recorder"))
        return tr(R"("%1": must be camera or recorder)").arg(term.shown);
    m_terms.append(term);
    return {};
}

QString DeviceSelection::addFile(const QString &path, bool isExcluded)
{
    QByteArray content;
    const QString why = readInputFile(path, maxFileBytes, &content);
    if (!why.isEmpty())
        return tr("%1: %2").arg(path, why);
    const int before = m_terms.size();
    const QStringList lines = QString::fromUtf8(content).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        QString error = add(line, QStringLiteral(" (%1:%2)").arg(path).arg(i + 1), isExcluded);
        if (!error.isEmpty())
            return error;
    }
    return m_terms.size() > before ? QString() : tr("%1: names no device").arg(path);
}

DeviceSelection DeviceSelection::parse(const QString &text, QString *error)
{
    DeviceSelection selection;
    error->clear();
    const QStringList written = text.split(QLatin1Char(','));
    for (int i = 0; i < written.size() && error->isEmpty(); ++i)
        *error = vms_sdk::escaped(selection.add(written.at(i).trimmed(), {}, false));
    return selection;
}

/// What the terms match, each in its turn.
class DeviceSelection::Match
{
    Q_DECLARE_TR_FUNCTIONS(orda_batch::DeviceSelection)

public:
    Match(const QList<vms_sdk::DevInfo> &inventory, const Knowledge &knowledge, bool isOfferedKnown)
        : m_inventory(inventory)
        , m_knowledge(knowledge)
        , m_isOfferedKnown(isOfferedKnown)
        , m_index(inventory)
    {
    }

    void take(const Term &term);
    Selected selected() const;

private:
    QSet<int> devicesOf(const Term &term);
    QSet<int> deviceOf(const Term &term);
    QSet<int> failedIn(const Term &term);
    template <typename Condition>
    QSet<int> devicesThat(Condition condition) const;
    void fail(const QString &error) { m_errors.append(error); }

    const QList<vms_sdk::DevInfo> &m_inventory;
    const Knowledge &m_knowledge;
    bool m_isOfferedKnown;
    DeviceIndex m_index;
    QSet<int> m_selected, m_leftOut, m_excluded; // places in the inventory
    QStringList m_errors;
    bool m_isEmpty = true; // all errors are terms that match nothing
};

template <typename Condition>
QSet<int> DeviceSelection::Match::devicesThat(Condition condition) const
{
    QSet<int> devices;
    for (int i = 0; i < m_inventory.size(); ++i)
        if (condition(m_inventory.at(i)))
            devices.insert(i);
    return devices;
}

QSet<int> DeviceSelection::Match::deviceOf(const Term &term)
{
    const QVector<int> found = m_index.find(term.text);
    if (found.size() > 1) {
        m_isEmpty = false;
        fail(tr(R"("%1" is the id of one device and the serial number of another one, "%2")")
                 .arg(term.shown, m_inventory.at(found.last()).id));
    }
    return {found.cbegin(), found.cend()};
}

QSet<int> DeviceSelection::Match::failedIn(const Term &term)
{
    QString error;
    QSet<int> devices;
    QStringList strange;
    const QStringList failed = m_knowledge.failedIn(term.text, &error);
    for (const QString &devId : failed) {
        const int place = m_index.findId(devId);
        if (place >= 0)
            devices.insert(place);
        else
            strange.append(devId);
    }
    if (error.isEmpty() && !strange.isEmpty()) {
        const int more = strange.size() - maxNamed;
        const QString ids = QStringList(strange.mid(0, maxNamed)).join(QStringLiteral(", "));
        error = tr(R"("%1": the inventory does not have %2)")
                    .arg(term.shown, more > 0 ? tr("%1 and %n more", nullptr, more).arg(ids) : ids);
    }
    if (!error.isEmpty()) {
        m_isEmpty = false;
        fail(error);
    }
    return devices;
}

QSet<int> DeviceSelection::Match::devicesOf(const Term &term)
{
    switch (term.kind) {
    case Term::All:
        break;
    case Term::Offered:
        if (m_isOfferedKnown)
            return devicesThat([this](const vms_sdk::DevInfo &device) { return m_knowledge.isOffered(device.id); });
        break;
    case Term::Device:
        return deviceOf(term);
    case Term::FailedIn:
        return failedIn(term);
    case Term::Name: {
        const QRegularExpression glob = globExpression(term.text);
        return devicesThat([&glob](const vms_sdk::DevInfo &device) { return glob.match(device.name).hasMatch(); });
    }
    case Term::Address: {
        const QPair<QHostAddress, int> subnet = subnetOf(term.text);
        return devicesThat([&subnet](const vms_sdk::DevInfo &device) {
            return !device.ip.isEmpty() && QHostAddress(device.ip).isInSubnet(subnet);
        });
    }
    case Term::DeviceKind: {
        const int kind = term.text == QLatin1String("camera") ? kindCamera : kindRecorder;
        return devicesThat([kind](const vms_sdk::DevInfo &device) { return device.kindCode == kind; });
    }
    case Term::Group:
        return devicesThat([&term](const vms_sdk::DevInfo &device) { return device.group == term.text; });
    }
    return devicesThat([](const vms_sdk::DevInfo &) { return true; });
}

void DeviceSelection::Match::take(const Term &term)
{
    if (term.kind == Term::Offered && term.isExcluded && !m_isOfferedKnown)
        return;
    const int before = m_errors.size();
    const QSet<int> matched = devicesOf(term);
    if (matched.isEmpty() && m_errors.size() == before) {
        m_isEmpty = m_isEmpty && !term.isExcluded;
        fail(term.kind == Term::Device ? tr(R"("%1": no device has this id or serial number)").arg(term.shown)
                                       : tr(R"("%1" matches no device)").arg(term.shown));
    }
    if (term.isExcluded) {
        m_excluded.unite(matched);
        return;
    }
    const bool isByName = term.kind == Term::Device || term.kind == Term::FailedIn;
    const bool isChecked = term.kind == Term::Offered && m_isOfferedKnown;
    for (const int place : matched)
        (isByName || isChecked || orda_batchCfg::isConfigurable(m_inventory.at(place)) ? m_selected : m_leftOut)
            .insert(place);
}

DeviceSelection::Selected DeviceSelection::Match::selected() const
{
    Selected selected;
    if (!m_errors.isEmpty()) {
        selected.error = vms_sdk::escaped(m_errors.join(QStringLiteral("; ")));
        selected.isEmpty = m_isEmpty;
        return selected;
    }
    for (int i = 0; i < m_inventory.size(); ++i)
        if (m_selected.contains(i) && !m_excluded.contains(i))
            selected.devIds.append(m_inventory.at(i).id);
    selected.leftOut = (QSet<int>(m_leftOut) - m_selected - m_excluded).size();
    selected.isEmpty = selected.devIds.isEmpty();
    if (selected.isEmpty)
        selected.error = selected.leftOut > 0 ? tr("the selection has no camera or recorder that is reached directly")
                                              : tr("the selection has no device");
    return selected;
}

DeviceSelection::Selected DeviceSelection::select(const QList<vms_sdk::DevInfo> &inventory, const Knowledge &knowledge,
                                                  bool isOfferedKnown) const
{
    Match match(inventory, knowledge, isOfferedKnown);
    const bool hasOnlyExcluded =
        std::all_of(m_terms.cbegin(), m_terms.cend(), [](const Term &term) { return term.isExcluded; });
    if (hasOnlyExcluded) {
        Term all;
        all.kind = Term::All;
        all.shown = QStringLiteral("all");
        match.take(all);
    }
    for (const Term &term : m_terms)
        match.take(term);
    return match.selected();
}

DeviceSelection::Selected DeviceSelection::connectTo(const QList<vms_sdk::DevInfo> &inventory,
                                                     const Knowledge &knowledge) const
{
    return select(inventory, knowledge, false);
}

DeviceSelection::Selected DeviceSelection::of(const QList<vms_sdk::DevInfo> &inventory,
                                              const Knowledge &knowledge) const
{
    return select(inventory, knowledge, true);
}

QStringList shareOf(const QStringList &devIds, int shard, int shards)
{
    QStringList share;
    for (const QString &devId : devIds) {
        const QByteArray hash = QCryptographicHash::hash(devId.toUtf8(), QCryptographicHash::Sha256);
        if (qFromBigEndian<quint64>(hash.constData()) % quint64(shards) == quint64(shard - 1))
            share.append(devId);
    }
    return share;
}

} // namespace orda_batch
