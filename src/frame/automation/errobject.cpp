#include "errobject.h"

ErrState &ErrObject::current()
{
    static ErrState state;
    return state;
}

void ErrObject::set(const LumoError &error)
{
    ErrState state;
    state.number = error.number();
    state.description = error.description();
    state.source = error.source();
    current() = state;
}

void ErrObject::set(const ErrState &state)
{
    current() = state;
}

void ErrObject::clear()
{
    current() = ErrState{};
}
