#include "fleet/onvif/TraitDealer.h"

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QRandomGenerator>

#include <array>
#include <numeric>

namespace device_fleet {

using namespace vms_sdk::onvif;

namespace {

void dealSignOn(const Dealer &dealer, CameraTraits *traits)
{
    enum SignOn
    {
        DigestMd5,
        OldDigest,
        DigestBoth,
        TokenOnly,
        OtherTokenOnly,
        All,
        OnceStale,
        OncePlain,
        Kinds
    };
    const int kind = dealer.deal(Trait::SignOn, Kinds);
    traits->takesUsernameToken = kind == TokenOnly || kind == OtherTokenOnly || kind == All;
    traits->takesDigest = kind != TokenOnly && kind != OtherTokenOnly;
    traits->takesSha256 = kind == DigestBoth || kind == All || kind == OnceStale;
    traits->isNonceTakenOnce = kind == OnceStale || kind == OncePlain;
    traits->saysStale = kind != OncePlain;
}

} // namespace

int Dealer::deal(Trait trait, int kinds) const
{
    std::array<quint32, 3> seeds{m_seed, quint32(trait), quint32(m_index / kinds)};
    QRandomGenerator random(seeds.data(), qsizetype(seeds.size()));
    std::vector<int> order(std::size_t(kinds), 0);
    std::iota(order.begin(), order.end(), 0);
    for (int i = kinds - 1; i > 0; --i)
        std::swap(order.at(std::size_t(i)), order.at(std::size_t(random.bounded(i + 1))));
    return order.at(std::size_t(m_index % kinds));
}

CameraTraits dealTraits(const Dealer &dealer)
{
    CameraTraits traits;
    traits.hasMedia2 = dealer.deal(Trait::Media, 5) >= 2;
    dealSignOn(dealer, &traits);
    traits.hidesServices = dealer.isOneOf(Trait::HiddenServices, 10);
    static constexpr std::array offsets{0, 0, 3 * 3600, -(5 * 3600 + 1800), 37};
    traits.clockOffset = std::chrono::seconds(offsets.at(std::size_t(dealer.deal(Trait::Clock, offsets.size()))));
    traits.style = XmlStyle(dealer.deal(Trait::Style, 3));
    const int transport = dealer.deal(Trait::Transport, 6);
    traits.isChunked = transport == 0 || transport == 1;
    traits.closesAfterAnswer = transport == 1 || transport == 2;
    traits.faultStatus = dealer.isOneOf(Trait::FaultStatus, 2) ? 400 : 500;
    return traits;
}

QMap<QString, QString> dealPaths(const Dealer &dealer, bool hasMedia2, bool hasImaging)
{
    static constexpr std::array<std::array<const char *, 4>, 4> kinds{
        {{"/onvif/device_service", "/onvif/media_service", "/onvif/media2_service", "/onvif/imaging_service"},
         {"/onvif/device_service", "/onvif/device_service", "/onvif/device_service", "/onvif/device_service"},
         {"/onvif/device_service", "/onvif/Media", "/onvif/Media2", "/onvif/Imaging"},
         {"/cgi/onvif/device", "/cgi/onvif/media?v=1", "/cgi/onvif/media?v=2", "/cgi/onvif/img"}}};
    const auto &kind = kinds.at(std::size_t(dealer.deal(Trait::Paths, int(kinds.size()))));
    QMap<QString, QString> paths{{text(tds), text(kind[0])}, {text(trt), text(kind[1])}};
    if (hasMedia2)
        paths.insert(text(tr2), text(kind[2]));
    if (hasImaging)
        paths.insert(text(timg), text(kind[3]));
    return paths;
}

} // namespace device_fleet
