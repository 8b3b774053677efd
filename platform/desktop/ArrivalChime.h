#pragma once

#include <QString>

#include <memory>

/// Plays short sounds that ship with the application. Silent where there is no audio.
class ArrivalChime
{
public:
    virtual ~ArrivalChime() = default;

    /// Starts the sound file of this name and returns at once. Nothing happens while another one plays.
    virtual void play(const QString &soundName) = 0;

    static std::shared_ptr<ArrivalChime> create();
};
