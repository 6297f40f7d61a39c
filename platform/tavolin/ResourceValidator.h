#pragma once

#include <QByteArray>
#include <QString>

namespace Zenvora::Tavolin {

/// Why a body cannot be the resource of that format and section; empty when it can. Pure; safe from any
/// thread.
///
/// Every format: not empty. "json": a JSON text (RFC 8259) with an object at its root, nested no deeper than
/// its reader takes. Section "holidayEvents": besides, a member "events" that is an object. The rest is up to
/// the reader, so that a format may grow without this one knowing.
QString FindBodyFault(const QByteArray& body, const QString& format, const QString& section);

}  // namespace Zenvora::Tavolin
