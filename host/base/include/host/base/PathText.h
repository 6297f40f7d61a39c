#pragma once

#include <zenvora/core/ioPath.h>

#include <QString>

#include <cstddef>
#include <string>

namespace Zenvora::Lumidex::Host {

/// What stands between the elements of a path's text: all that the system knows, and the one that it writes.
#ifdef _WIN32
constexpr char kSeparators[] = "/\\";
constexpr char kSeparator = '\\';
#else
constexpr char kSeparators[] = "/";
constexpr char kSeparator = '/';
#endif

/// How much of `kLongestFileName` a name in UTF-8 takes. Pure.
std::size_t NameLength(const std::string& name);

/// A path as text that leads back to its very bytes: those that are no text go into it as lone surrogates,
/// which no text holds. Qt opens no file of such a name, but it compares, cuts and joins them. Pure.
QString ReversibleText(const ioPath& path);
ioPath PathOfReversible(const QString& text);

/// True when the path is text, so that Qt can find its file.
bool IsText(const ioPath& path);

/// The folder without symbolic links, in one spelling; it need not exist. As it is where its real name is no
/// text. Blocks on the disk.
ioPath RealFolder(const ioPath& folder);

/// True when `path` is `folder` or lies below it, by its elements. Pure.
bool IsAtOrBelow(const ioPath& path, const ioPath& folder);

}  // namespace Zenvora::Lumidex::Host
