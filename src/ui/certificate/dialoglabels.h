#pragma once

#include "certificate/certificatelabels.h"

/// The words of the certificate on the screen.
extern const CertificateLabels dialogLabels;
