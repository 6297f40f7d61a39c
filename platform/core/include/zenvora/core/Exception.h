#pragma once

#include <zenvora/core/Export.h>

#include <boost/exception/all.hpp>
#include <boost/throw_exception.hpp>

#include <exception>
#include <string>

namespace Zenvora {

/// Facts attached to an `Exception` as boost error information, each a UTF-8 text.
using TagFilename = boost::error_info<struct TagFilenameName, std::string>;
using TagDescription = boost::error_info<struct TagDescriptionName, std::string>;
using TagCallStack = boost::error_info<struct TagCallStackName, std::string>;
/// What was wrong in a parsed document.
using TagParseError = boost::error_info<struct TagParseErrorName, std::string>;

/// Base of everything that this code base throws.
///
/// It has no data of its own: what it carries is attached under the tags above with `<<`. Throw it with
/// `BOOST_THROW_EXCEPTION` (or `boost::throw_exception` with a location), so that the throw site is recorded
/// and `boost::current_exception` can copy it to another thread.
///
/// Thread-safety: copies share their tags without a lock, and so do all rethrowings of one
/// `boost::exception_ptr`: those belong on one thread at a time. What `boost::current_exception` returns
/// shares nothing with the exception in flight.
class ZENVORA_CORE_EXPORT Exception : public virtual std::exception, public virtual boost::exception {
 public:
  Exception() = default;
  Exception(const Exception&) = default;
  Exception(Exception&&) = default;
  Exception& operator=(const Exception&) = default;
  Exception& operator=(Exception&&) = default;
  ~Exception() noexcept override;

  /// The `TagDescription` text, else the `TagParseError` text, else the class's name. Valid as long as the
  /// object is neither changed nor destroyed.
  const char* what() const noexcept override;
};

namespace Core {

/// A failure of the core library itself: a path that cannot be used, a system call that cannot work.
class ZENVORA_CORE_EXPORT CoreException : public Exception {
 public:
  CoreException() = default;
  CoreException(const CoreException&) = default;
  CoreException(CoreException&&) = default;
  CoreException& operator=(const CoreException&) = default;
  CoreException& operator=(CoreException&&) = default;
  ~CoreException() noexcept override;
};

/// A document that cannot be read, is not JSON, or lacks what its reader needs. Carries `TagParseError`
/// (place and cause) and, when it came from a file, `TagFilename`.
class ZENVORA_CORE_EXPORT JsonException : public CoreException {
 public:
  JsonException() = default;
  JsonException(const JsonException&) = default;
  JsonException(JsonException&&) = default;
  JsonException& operator=(const JsonException&) = default;
  JsonException& operator=(JsonException&&) = default;
  ~JsonException() noexcept override;
};

}  // namespace Core
}  // namespace Zenvora
