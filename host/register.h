#pragma once

namespace cvdeveloper::standalone {

// Makes the stand-alone host's classes known to this process: "CVConnector.Application" and
// "clqexStdC10.cUtil".
void register_standalone_host();

}  // namespace cvdeveloper::standalone
