#pragma once

/// A damped spring that pulls a value to its goal, in closed form: exact at any time, however far apart the
/// frames are.
///
/// With w = 2 pi / response and z = dampingFraction the displacement x from the goal obeys x'' + 2 z w x' +
/// w^2 x = 0. `response` is the period in seconds that the spring would have without damping; z = 1 comes to
/// rest without overshoot, and z above 1 is taken as 1.
class DampedSpring
{
public:
    struct State
    {
        double displacement; ///< Value less goal, in the value's unit.
        double velocity;     ///< The value's unit per second.
    };

    DampedSpring(double response, double dampingFraction);

    /// Where `start` has come to after `seconds` (0 or more).
    State after(State start, double seconds) const;

    /// How far a spring in this state would swing without damping.
    double amplitude(State state) const;

private:
    double m_frequency; ///< Radians per second, undamped.
    double m_dampingFraction;
};
