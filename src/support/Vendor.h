#pragma once

/// Where the vendor is found on the net. The names lie under a domain that is reserved for examples.
namespace Vendor {

inline constexpr wchar_t SiteName[] = L"varnholtine.example"; ///< as shown to the user
inline constexpr wchar_t Site[] = L"https://www.varnholtine.example/";
inline constexpr wchar_t Tutorials[] = L"https://www.varnholtine.example/tutorials/"; ///< folder of the help pages
inline constexpr char SupportEmail[] = "support@varnholtine.example";
inline constexpr char GermanSupportEmail[] = "hilfe@varnholtine.example";

} // namespace Vendor
