#pragma once

#include <thread>

/// A server on this machine that lets in whoever asks as PostgreSQL does, and then says nothing
/// until it goes.
class SilentServer {
public:
    SilentServer();
    ~SilentServer();
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

    int port() const { return port_; }

private:
    void serve() const;

    int listening_ = -1;
    int port_ = 0;
    int ending_[2] = {-1, -1}; ///< a pipe: closed at one end when the server goes
    std::thread thread_;
};
