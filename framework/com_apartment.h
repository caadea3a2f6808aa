#pragma once

/// Makes the calling thread one that may use COM, apartment-threaded as the
/// shell's windows want it, until the scope ends. A thread that already is set up
/// otherwise stays so.
class CComApartment
{
  public:
    CComApartment();
    ~CComApartment();
    CComApartment(const CComApartment&) = delete;
    CComApartment& operator=(const CComApartment&) = delete;

  private:
    bool m_entered;
};
