#pragma once

// Tells whether another copy of the program runs for the same application id.
class SingleInstance {
public:
    virtual ~SingleInstance() = default;

    // Claims the program's place; false when another running copy holds it. The claim
    // lasts as long as this object.
    virtual bool claim() = 0;
};
