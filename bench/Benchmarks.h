#pragma once

/// Each program's own: tells the library its benchmarks. Called once, with the application object there.
void registerBenchmarks();
