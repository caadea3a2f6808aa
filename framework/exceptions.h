#pragma once

#include <exception>

/// Thrown to leave an operation after a message to the user, as
/// CDataExchange::Fail does. Whoever catches it shows nothing.
class CUserException : public std::exception
{
  public:
    const char* what() const noexcept override { return "The operation was given up."; }
};

/// Shows the exception that is being handled in a message box (its what(), a
/// general text when it has none; nothing for CUserException). To be called
/// inside a catch clause. Lets no exception out.
void AfxReportCurrentException() noexcept;
