#pragma once

/// While one of these lives, a call into ACT! is running: the message loop turns, but commands are ignored.
class Busy {
public:
    Busy() { ++depth_; }
    ~Busy() { --depth_; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

    static bool Now() { return depth_ > 0; }

private:
    static inline int depth_ = 0;
};
