#pragma once

/// Namespaces of the ONVIF standard and of what it stands on, under the prefixes that its own texts use.
namespace vms_sdk::onvif {

inline constexpr char soapEnvelope[] = "http://www.w3.org/2003/05/soap-envelope"; ///< SOAP 1.2
inline constexpr char tt[] = "http://www.onvif.org/ver10/schema";
inline constexpr char tds[] = "http://www.onvif.org/ver10/device/wsdl";
inline constexpr char trt[] = "http://www.onvif.org/ver10/media/wsdl"; ///< Media
inline constexpr char tr2[] = "http://www.onvif.org/ver20/media/wsdl"; ///< Media2
inline constexpr char timg[] = "http://www.onvif.org/ver20/imaging/wsdl";
inline constexpr char ter[] = "http://www.onvif.org/ver10/error";
inline constexpr char dn[] = "http://www.onvif.org/ver10/network/wsdl"; ///< types of devices in a search
inline constexpr char wsdd[] = "http://schemas.xmlsoap.org/ws/2005/04/discovery"; ///< WS-Discovery
inline constexpr char wsa[] = "http://schemas.xmlsoap.org/ws/2004/08/addressing"; ///< WS-Addressing, as it has it
inline constexpr char wsse[] = "http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd";
inline constexpr char wsu[] = "http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-utility-1.0.xsd";

} // namespace vms_sdk::onvif
