#pragma once

#include <host/pixels/PhotoAnalysis.h>

#include <memory>
#include <string>

namespace Zenvora::Lumidex::Host {

/// What runs models in this build, with its version; empty: nothing does.
std::string ModelRuntime();

/// An analyser that asks a model in a file: ONNX, one input for a picture of a fixed size, of whose outputs
/// the first one counts. How pictures are handed to it is in docs/decisions/similar-models.md.
///
/// The name is made of the SHA-256 of the file's bytes: what one model says is never compared with what
/// another one says. The model is run with care, but it is a program: it should come from somebody who is
/// trusted.
///
/// `Describe` also throws, with the cause as `what()`, when the model has nothing to say of a picture: when
/// its numbers are not finite, are all zero or are not as many as otherwise. The same picture gives the same
/// bits on one machine; on another kind of processor the last ones may differ.
///
/// Reads the file and tries the model out, which blocks on the disk. Each thread that describes a picture has
/// a copy of the model in memory. Throws `HostError` naming the file and the cause; in every case when
/// `ModelRuntime` is empty.
std::unique_ptr<PhotoAnalyser> OpenModel(const ioPath& file);

}  // namespace Zenvora::Lumidex::Host
