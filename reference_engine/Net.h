// The one way into Boost.Asio and Boost.Beast for the simulated engine's servers.
#pragma once

// Boost 1.74's asio/awaitable.hpp uses std::exchange without including <utility>, which
// C++20 builds then miss.
#include <utility>

#include <boost/asio.hpp>
