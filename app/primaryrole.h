#pragma once

/// Being the one running copy of the program. A copy that is about to start another in its place
/// gives the role up first, so that the other is not turned away.
class PrimaryRole
{
public:
    PrimaryRole() = default;
    PrimaryRole(const PrimaryRole &) = delete;
    PrimaryRole &operator=(const PrimaryRole &) = delete;
    virtual ~PrimaryRole() = default;

    /// From now on the next start becomes the primary copy; this one runs on until it ends.
    virtual void handOver() = 0;

    /// Undoes handOver() when no other copy has taken the role since; else changes nothing.
    virtual void takeBack() = 0;
};
