#pragma once

#include <memory>

/// The desktop's settings daemon, as programs on a display meet it: it tells them the logical DPI,
/// and later each change. Programs that are started while it lives hear it.
class DisplayScale
{
public:
    explicit DisplayScale(int dpi);
    ~DisplayScale();
    DisplayScale(const DisplayScale &) = delete;
    DisplayScale &operator=(const DisplayScale &) = delete;

    void change(int dpi);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
