// SPDX-License-Identifier: MIT
#ifndef STBBENCH_INSTRUCTIONS_H
#define STBBENCH_INSTRUCTIONS_H

#include "measure.h"

#include <QtCore/qstring.h>

#include <optional>

namespace stbbench {

/*! Whether this program was built with callgrind's requests. */
bool canCollect();

/*! To be run under callgrind with --collect-atstart=no: collects while one phase of \a count rows runs. */
void collectRows(Form &form, Phase phase, int count);

/*!
    Runs this program again under callgrind and returns the instructions of one row of the form named \a form in
    \a phase. Nothing when valgrind fails; \a error says why.
*/
std::optional<double> instructionsPerRow(const QString &form, Phase phase, int count, QString *error);

} // namespace stbbench

#endif // STBBENCH_INSTRUCTIONS_H
