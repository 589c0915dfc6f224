"""The engine's server protocol from the interface description: the client's proxy
(RemoteEngine, a TarnApi that sends each operation over a socket) and the server's table
of the operations it serves, both by virtual-table position, which is the operation's
number on the wire (docs/architecture.md).

Standard library only; called by tools/generate.py.
"""

from __future__ import annotations

from typing import Callable

import kelidl

BANNER = "Generated from the interface description by tools/generate.py. Do not edit."
NS = "Varno::Kel_cpp::Reference"

# Operations the proxy answers itself: the connection is the proxy's own.
LOCAL = {
    "reconnectRemoteServer": "return client_->reconnect({position}, {args});",
    "disconnect": "client_->disconnect({position});",
    # The server's handle of the socket, from the handshake: known after the end too.
    "getHandle": "return client_->handle();",
    # SCRAM-SHA-256 in Login frames: the password does not leave the client.
    "logIn": "client_->logIn({args});",
}


def untravelled(iface: kelidl.Interface, op: kelidl.Operation) -> str | None:
    """Why an operation cannot go over a socket, or None when it can."""
    values = list(op.inputs) + ([op.result] if op.result else [])
    if any(v.kind == "handler" for v in values):
        return "a server handler is an object of the caller's process: register it on the server's own engine"
    if op.result is not None and op.result.kind == "engine":
        return "an engine object cannot be handed over a connection: connect from the local engine"
    if not iface.streamable(op):
        return "its records have no stream form yet"
    return None


def remote_engine_h(iface: kelidl.Interface, signature: Callable[[kelidl.Operation], str]) -> str:
    out = [f"// {BANNER}",
           "// The proxy of a remote connection: every operation travels to the server as a",
           "// Call frame numbered by its virtual-table position (RemoteClient.h).",
           "#pragma once", "", "#include <Kel_cpp/TarnApi.h>", "", '#include "families/servers/RemoteClient.h"', "",
           "#include <memory>", "", f"namespace {NS} {{", "",
           "class RemoteEngine final : public TarnApi {", "public:",
           "    explicit RemoteEngine(std::shared_ptr<Remote::RemoteClient> client)",
           "        : client_(std::move(client)) {}", ""]
    out += [f"    {signature(op)} override;" for op in iface.operations]
    out += ["", "private:", "    std::shared_ptr<Remote::RemoteClient> client_;", "};", "",
            f"}} // namespace {NS}"]
    return "\n".join(out) + "\n"


def proxy_body(iface: kelidl.Interface, op: kelidl.Operation,
               result: Callable[[kelidl.Value | None], str]) -> str:
    args = [p.name for p in op.inputs]
    why = None if op.reserved else untravelled(iface, op)
    if why is not None:
        return f'throw Remote::notRemotable("{op.name}", L"{why}");'
    if op.name in LOCAL:
        return LOCAL[op.name].format(position=op.position, args=", ".join(args))
    if op.is_async:
        return f"return client_->callAsync({op.position}, " + ", ".join(["callback"] + args) + ");"
    return f"return client_->call<{result(op.result)}>(" + ", ".join([str(op.position)] + args) + ");"


def remote_engine_cpp(iface: kelidl.Interface, signature: Callable[..., str],
                      result: Callable[[kelidl.Value | None], str]) -> str:
    out = [f"// {BANNER}", "", '#include "RemoteEngine.h"', "", f"namespace {NS} {{", ""]
    for op in iface.operations:
        sig = signature(op)
        ret, rest = sig.split(f" {op.name}(", 1)
        unused = (op.reserved or untravelled(iface, op) is not None) and (op.inputs or op.is_async)
        if unused:
            # The arguments stay unnamed: nothing is sent.
            rest = signature(op, False).split(f" {op.name}(", 1)[1]
        out += [f"{ret} RemoteEngine::{op.name}({rest} {{", f"    {proxy_body(iface, op, result)}", "}"]
    out += ["", f"}} // namespace {NS}"]
    return "\n".join(out) + "\n"


def remote_serve_cpp(iface: kelidl.Interface) -> str:
    served = [op for op in iface.operations if not op.reserved and untravelled(iface, op) is None]
    out = [f"// {BANNER}", "// The operations the engine's server serves, by virtual-table position.", "",
           '#include "families/servers/RemoteCalls.h"', "", "#include <array>", "", f"namespace {NS}::Remote {{",
           "namespace {", "",
           f"constexpr std::array<Serve, {iface.operations[-1].position + 1}> table = [] {{",
           f"    std::array<Serve, {iface.operations[-1].position + 1}> serves{{}};"]
    for op in served:
        if op.is_async:
            out.append(f"    serves[{op.position}] = &serveAsync<&TarnApi::{op.name}, {op.position}>;")
        else:
            out.append(f"    serves[{op.position}] = &serve<&TarnApi::{op.name}>;")
    out += ["    return serves;", "}();", "", "} // namespace", "",
            "Serve served(uint16_t position) {",
            "    return position < table.size() ? table[position] : nullptr;", "}", "",
            f"}} // namespace {NS}::Remote"]
    return "\n".join(out) + "\n"


def outputs(iface: kelidl.Interface, signature: Callable[..., str],
            result: Callable[[kelidl.Value | None], str]) -> dict[str, str]:
    return {"reference_engine/generated/RemoteEngine.h": remote_engine_h(iface, signature),
            "reference_engine/generated/RemoteEngine.cpp": remote_engine_cpp(iface, signature, result),
            "reference_engine/generated/RemoteServe.cpp": remote_serve_cpp(iface)}
