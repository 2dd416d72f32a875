// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/dbus/BusNames.h"

#include "base/ApplicationId.h"

using namespace Qt::StringLiterals;

namespace {

QString error(const QString& name)
{
    return BusNames::interface() + u".Error."_s + name;
}

} // namespace

QString BusNames::service()
{
    return applicationId();
}

QString BusNames::path()
{
    // https://specifications.freedesktop.org/desktop-entry-spec/latest/dbus.html
    return u'/' + applicationId().replace(u'.', u'/').replace(u'-', u'_');
}

QString BusNames::interface()
{
    return applicationId() + u'1';
}

QString BusNames::invalidArguments()
{
    return error(u"InvalidArguments"_s);
}

QString BusNames::errorOf(CaptureReport::Outcome outcome)
{
    using Outcome = CaptureReport::Outcome;
    switch (outcome) {
    case Outcome::Cancelled:
        return error(u"Cancelled"_s);
    case Outcome::Busy:
        return error(u"Busy"_s);
    case Outcome::Unavailable:
        return error(u"NotAvailable"_s);
    case Outcome::NotFound:
        return error(u"NotFound"_s);
    case Outcome::Done:
    case Outcome::Failed:
        break;
    }
    return error(u"Failed"_s);
}
