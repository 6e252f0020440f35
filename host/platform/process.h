#pragma once

namespace cvdeveloper::standalone {

// The number by which the system knows this process.
long process_number() noexcept;

}  // namespace cvdeveloper::standalone
