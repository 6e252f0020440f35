#pragma once

namespace cvdeveloper::standalone {

// Makes the stand-alone host's classes known to this process: "CVConnector.Application" and the
// standard components "clqexStdC10.cUtil", ".cLegalHolidays" and ".cProgress".
void register_standalone_host();

}  // namespace cvdeveloper::standalone
