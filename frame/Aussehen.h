#pragma once

/* Colours and shapes of the whole program, in one place. */
namespace aussehen {

void anwenden();

} // namespace aussehen
