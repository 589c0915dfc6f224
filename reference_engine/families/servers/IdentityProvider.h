// The simulated outside identity provider, "kel-sim-idp". It stands for a real one that
// the engine would send its users to: getThirdPartyLoginUrl hands out its login address
// with a fresh state; the user signs in there (in tests: kelsim_signInAtIdentityProvider),
// which turns the state into a one-time authorization code; thirdPartyLogin redeems the
// code for the user's name. The address is under ".invalid", so nothing real is reached.
// One provider per process, as an outside service would be; it has its own lock, taken
// alone.
#pragma once

#include <optional>
#include <string>

namespace Varno::Kel_cpp::Reference::IdentityProvider {

inline constexpr const wchar_t* name = L"kel-sim-idp";
inline constexpr const wchar_t* loginAddress = L"https://idp.kel-sim.invalid/authorize";

// A login address with a new state: "<loginAddress>?client_id=kel_sim&state=<32 hex>".
std::wstring newLoginUrl();
// The user signed in at `url`: its state becomes a code (valid 5 minutes of the login
// clock, once). Empty when the url's state was never handed out or is used up.
std::wstring signIn(const std::wstring& url, const std::wstring& user);
// The user a code was issued for; the code is used up. Nothing for an unknown, used or
// expired code.
std::optional<std::wstring> redeem(const std::wstring& code);

} // namespace Varno::Kel_cpp::Reference::IdentityProvider
