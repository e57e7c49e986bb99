#include "ui/history/wipehistorymodel.h"

#include "model/displaytext.h"
#include "model/displaytime.h"
#include "ui/style/palette.h"

#include <QColor>

using namespace Qt::StringLiterals;

namespace {

// Any other status keeps the colour of the text.
QVariant statusColor(WipeStatus status)
{
    switch (status) {
    case WipeStatus::Completed:
        return palette::Success;
    case WipeStatus::Failed:
        return palette::Error;
    default:
        return {};
    }
}

} // namespace

WipeHistoryModel::WipeHistoryModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

void WipeHistoryModel::setReports(const QList<WipeReport> &reports)
{
    beginResetModel();
    m_reports = reports;
    endResetModel();
}

int WipeHistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_reports.size());
}

int WipeHistoryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

bool WipeHistoryModel::holds(const QModelIndex &index) const
{
    return checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid);
}

QVariant WipeHistoryModel::data(const QModelIndex &index, int role) const
{
    if (!holds(index))
        return {};
    const WipeReport &report = m_reports.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return cellText(report, index.column());
    case Qt::ForegroundRole:
        return index.column() == StatusColumn ? statusColor(report.status) : QVariant();
    case CertificateIdRole:
        return report.certificateId;
    default:
        return {};
    }
}

QString WipeHistoryModel::cellText(const WipeReport &report, int column)
{
    switch (column) {
    case CertificateColumn:
        return report.certificateId;
    case OperationColumn:
        return report.operationTypeName();
    case TargetColumn:
        return report.operationType == FileWipe ? tr("%1 个文件").arg(report.fileCount)
                                                : report.disk.displayName();
    case MethodColumn:
        return displayText(report.method.name);
    case StartColumn:
        return displayTime(report.startTime);
    case StatusColumn:
        return report.statusName();
    default:
        return {};
    }
}

QVariant WipeHistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case CertificateColumn:
        return tr("证书ID");
    case OperationColumn:
        return tr("操作类型");
    case TargetColumn:
        return tr("目标");
    case MethodColumn:
        return tr("擦除方法");
    case StartColumn:
        return tr("开始时间");
    case StatusColumn:
        return tr("状态");
    default:
        return {};
    }
}

Qt::ItemFlags WipeHistoryModel::flags(const QModelIndex &index) const
{
    return holds(index) ? QAbstractTableModel::flags(index) : Qt::NoItemFlags;
}
