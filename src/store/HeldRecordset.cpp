#include "HeldRecordset.h"

namespace quillon {

HeldRecordset::HeldRecordset(ConnectionPtr connection, QString sql, Params params, QObject *parent)
    : QObject(parent), m_connection(std::move(connection)), m_sql(std::move(sql)), m_params(std::move(params))
{
    requery();
}

void HeldRecordset::requery()
{
    m_rows = Query(*m_connection, m_sql, m_params);
    emit requeried();
}

} // namespace quillon
