#pragma once

#include <QStringView>

/// Style sheets of the certificate on the screen.
namespace certificatestyles {

inline constexpr QStringView Page = u"background-color: white;";
inline constexpr QStringView Emblem = u"font-size: 48px;";
inline constexpr QStringView Title = u"font-size: 28px; font-weight: bold; color: #1e293b;";
inline constexpr QStringView Subtitle = u"font-size: 14px; color: #64748b;";
inline constexpr QStringView Separator = u"background-color: #e2e8f0;";
inline constexpr QStringView Caption = u"color: #64748b; font-size: 13px;";
inline constexpr QStringView CertificateId =
    u"color: #1e293b; font-weight: bold; font-size: 15px; font-family: monospace;";
inline constexpr QStringView SectionTitle =
    u"font-size: 16px; font-weight: bold; color: #1e293b; padding-top: 10px; "
    "border-bottom: 2px solid #3b82f6;";
inline constexpr QStringView SectionBody = u"background-color: #f8fafc; border-radius: 8px;";
inline constexpr QStringView FirstSectionBody =
    u"background-color: #f8fafc; border-radius: 8px; padding: 15px;";
/// For the widget around a row, so that the padding of a section body does not apply to every label in it.
inline constexpr QStringView Row = u"padding: 0px;";
inline constexpr QStringView RowLabel = u"color: #64748b; font-size: 13px; min-width: 100px;";
inline constexpr QStringView Value = u"color: #1e293b; font-size: 13px;";
inline constexpr QStringView GoodValue = u"color: #22c55e; font-weight: bold;";
inline constexpr QStringView BadValue = u"color: #ef4444; font-weight: bold;";
inline constexpr QStringView Disclaimer = u"color: #64748b; font-size: 11px; padding: 15px; "
                                          "background-color: #f1f5f9; border-radius: 6px;";
inline constexpr QStringView ButtonBar = u"background-color: #f8fafc; border-top: 1px solid #e2e8f0;";
inline constexpr QStringView PrimaryButton =
    u"QPushButton {  background-color: #3b82f6;  color: white;  border: none;  border-radius: 6px;"
    "  padding: 8px 16px;  font-size: 14px;}"
    "QPushButton:hover {  background-color: #2563eb;}";
inline constexpr QStringView SecondaryButton =
    u"QPushButton {  background-color: white;  color: #374151;  border: 1px solid #d1d5db;"
    "  border-radius: 6px;  padding: 8px 16px;  font-size: 14px;}"
    "QPushButton:hover {  background-color: #f9fafb;  border-color: #9ca3af;}";

} // namespace certificatestyles
