#pragma once

#include <exception>

/// Thrown to abandon an operation after the user has seen a message, as
/// CDataExchange::Fail does. The handler must not show another one.
class CUserException : public std::exception
{
  public:
    const char* what() const noexcept override { return "The operation was given up."; }
};

/// Shows the exception that is being handled in a message box: its what(), or a
/// general text if it has none; nothing for CUserException. Call it only inside a
/// catch clause. It throws nothing.
void AfxReportCurrentException() noexcept;
