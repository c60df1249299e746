// The floor under a run: the same files and the same model, with nothing around them.
#pragma once

#include <string>

namespace arbolith::bench {

/// Starts a model with posix_spawn in its folder and waits for its end.
void RunBareModel(const std::string& folder, const std::string& model);

/// Writes the exchange files of one stand line, runs the model and reads its output. Returns the
/// output's size in bytes.
std::size_t ExchangeBare(const std::string& folder, const std::string& model,
                         const std::string& standLine);

}  // namespace arbolith::bench
